// Tells a test of the built program what stands where on its screen: a plugin that the toolkit loads into the
// shipped program when the environment asks for it. It only looks; every event comes from outside.
//
// A request is a line on the local socket TESSALOOM_PROBE. "look" is answered by a line of JSON: every
// visible widget, menu entry and entry of a list that has a name or a text, with its place on the screen; an
// entry that is scrolled out of sight has the place of its list, and "wheel", the mouse button that turns
// towards it. "see X Y W H" is answered by a digest of the pixels that the screen shows there; with a path
// behind it they go to that file. "standstill" is answered by the longest time, in milliseconds, in which the
// program let no event through since it was asked last.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>

#include <memory>
#include <utility>

namespace {

QJsonObject placed(const QString & name, const QString & text, const QRect & where)
{
    return {{"name", name},   {"text", text},           {"x", where.x()},
            {"y", where.y()}, {"width", where.width()}, {"height", where.height()}};
}

QString text_of(const QWidget & widget)
{
    if (const auto * const button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    if (const auto * const line = qobject_cast<const QLineEdit *>(&widget))
        return line->text();
    if (const auto * const label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto * const list = qobject_cast<const QComboBox *>(&widget))
        return list->currentText();
    if (const auto * const text = qobject_cast<const QPlainTextEdit *>(&widget))
        return text->toPlainText();
    return {};
}

QRect on_screen(const QWidget & widget, const QRect & inside)
{
    return {widget.mapToGlobal(inside.topLeft()), inside.size()};
}

template <typename Bar>
void add_entries(const Bar & bar, QJsonArray & found)
{
    for (QAction * entry : bar.actions())
        if (entry->isVisible() && !entry->isSeparator()) {
            const QString name = entry->menu() && entry->objectName().isEmpty() ? entry->menu()->objectName()
                                                                                : entry->objectName();
            QJsonObject one = placed(name, entry->text(), on_screen(bar, bar.actionGeometry(entry)));
            one["enabled"] = entry->isEnabled();
            found.append(one);
        }
}

constexpr int wheel_up = 4, wheel_down = 5;  // as the window system counts the buttons

// The entries of a list, each by its text.
void add_rows(const QAbstractItemView & list, QJsonArray & found)
{
    if (!list.model() || list.viewport()->visibleRegion().isEmpty())
        return;
    const QRect in_sight = list.viewport()->rect();
    for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row) {
        const QModelIndex entry = list.model()->index(row, 0, list.rootIndex());
        const QRect where = list.visualRect(entry), seen = where & in_sight;
        if (where.isEmpty())
            continue;
        QJsonObject one = placed({}, entry.data().toString(),
                                 on_screen(*list.viewport(), seen.isEmpty() ? in_sight : seen));
        if (seen.isEmpty())
            one["wheel"] = where.top() < in_sight.top() ? wheel_up : wheel_down;
        one["enabled"] = list.isEnabled();
        one["selected"] = list.selectionModel()->isSelected(entry);
        found.append(one);
    }
}

void add_widget(const QWidget & widget, QJsonArray & found)
{
    if (const auto * const bar = qobject_cast<const QMenuBar *>(&widget))
        add_entries(*bar, found);
    if (const auto * const menu = qobject_cast<const QMenu *>(&widget))
        add_entries(*menu, found);
    QJsonObject one = placed(widget.objectName(), text_of(widget), on_screen(widget, widget.rect()));
    one["enabled"] = widget.isEnabled();
    one["focus"] = widget.hasFocus();
    one["window"] = widget.window()->objectName();
    one["title"] = widget.window()->windowTitle();
    one["option"] = qobject_cast<const QRadioButton *>(&widget) != nullptr;
    if (const auto * const button = qobject_cast<const QAbstractButton *>(&widget))
        one["checked"] = button->isChecked();
    found.append(one);
}

// Only the window on top can be reached by the user.
QWidget * top_window()
{
    if (QWidget * const popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget * const modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget * window : QApplication::topLevelWidgets())
        if (window->isVisible())
            return window;
    return nullptr;
}

QByteArray looked()
{
    QJsonObject answer;
    if (QWidget * const window = top_window()) {
        QJsonArray found;
        add_widget(*window, found);
        for (const QWidget * widget : window->findChildren<QWidget *>())
            if (widget->isVisible() && !widget->visibleRegion().isEmpty())
                add_widget(*widget, found);
        for (const QAbstractItemView * list : window->findChildren<QAbstractItemView *>())
            add_rows(*list, found);  // its entries may cover all of it
        answer = {{"window", window->objectName()},
                  {"class", window->metaObject()->className()},
                  {"title", window->windowTitle()},
                  {"active", window->isActiveWindow() || qobject_cast<const QMenu *>(window)},
                  {"id", static_cast<qint64>(window->window()->winId())},
                  {"widgets", found}};
        if (const auto * const box = qobject_cast<const QMessageBox *>(window))
            answer["message"] = box->text();
    }
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

QByteArray seen(const QList<QByteArray> & words)
{
    if (words.size() < 5)
        return "see X Y WIDTH HEIGHT [PATH]";
    const QImage pixels =
        QApplication::primaryScreen()
            ->grabWindow(0, words[1].toInt(), words[2].toInt(), words[3].toInt(), words[4].toInt())
            .toImage();
    if (words.size() > 5 && !pixels.save(QString::fromUtf8(words.mid(5).join(' '))))
        return "the file can't be written";
    const auto bytes =
        QByteArrayView(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

// A clock that ticks as long as events come through.
class event_clock {
public:
    event_clock()
    {
        since_tick.start();
        QObject::connect(&ticker, &QTimer::timeout,
                         [this] { longest = std::max(longest, since_tick.restart()); });
        ticker.start(1);
    }
    qint64 longest_standstill() { return std::exchange(longest, 0); }

private:
    QTimer ticker;
    QElapsedTimer since_tick;
    qint64 longest = 0;  // milliseconds
};

QByteArray answer_to(const QByteArray & line, event_clock & clock)
{
    if (line == "look")
        return looked();
    return line == "standstill" ? QByteArray::number(clock.longest_standstill()) : seen(line.split(' '));
}

void answer(QLocalSocket & asker, event_clock & clock)
{
    while (asker.canReadLine()) {
        asker.write(answer_to(asker.readLine().trimmed(), clock) + '\n');
        asker.flush();
    }
}

void listen(const QString & name)
{
    auto * const server = new QLocalServer(qApp);
    const auto clock = std::make_shared<event_clock>();
    QObject::connect(server, &QLocalServer::newConnection, server, [server, clock] {
        while (QLocalSocket * const asker = server->nextPendingConnection())
            QObject::connect(asker, &QLocalSocket::readyRead, asker,
                             [asker, clock] { answer(*asker, *clock); });
    });
    if (!server->listen(name))
        qWarning("%s: %s", qPrintable(name), qPrintable(server->errorString()));
}

class probe : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")
public:
    QObject * create(const QString &, const QString &) override
    {
        listen(qEnvironmentVariable("TESSALOOM_PROBE"));
        return new QObject;
    }
};

}  // namespace

#include "probe.moc"
