#include "desktop/drop_zone.h"

#include "desktop/qt_text.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QSysInfo>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int rim = 12, letter_height = 20;  // pixels

bool is_here(const QUrl & url)
{
    const QString host = url.host();
    return url.scheme() == QLatin1String("file") &&
           (host.isEmpty() || host == QLatin1String("localhost") || host == QSysInfo::machineHostName());
}

// Bytes, so that names which are no valid text are found as well.
std::string path_in(const QUrl & url)
{
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

bool carries_files(const QDropEvent & event)
{
    return event.mimeData()->hasUrls();
}

// Over everything in the window, and in nobody's way.
class drop_notice : public QLabel {
public:
    explicit drop_notice(QWidget & window) : QLabel(&window)
    {
        setObjectName(QStringLiteral("drop_area"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        setTextFormat(Qt::PlainText);
        setMargin(2 * rim);
        hide();
    }

    void say(const drop_offer & offer)
    {
        setText(shown(offer.sentence));
        setStyleSheet(QStringLiteral("QLabel { background: rgba(20, 22, 25, 225); color: white; "
                                     "font-size: %1px; font-weight: bold; border: 4px dashed %2; "
                                     "border-radius: 10px; }")
                          .arg(letter_height)
                          .arg(QLatin1String(offer.taken ? "#f0b050" : "#d06a5a")));
        setGeometry(parentWidget()->rect().adjusted(rim, rim, -rim, -rim));
        raise();
        show();
    }
};

class drop_zone : public QObject {
public:
    drop_zone(QWidget & its_window, const drop_target & its_target, error_report its_report)
        : QObject(&its_window),
          window(its_window),
          target(its_target),
          report(std::move(its_report)),
          notice(*new drop_notice(its_window))  // owned by the window
    {
        window.setAcceptDrops(true);
        window.installEventFilter(this);
        for (QWidget * each : window.findChildren<QWidget *>())
            each->installEventFilter(this);
    }

    bool eventFilter(QObject * watched, QEvent * event) override
    {
        switch (event->type()) {
            case QEvent::DragEnter:
            case QEvent::DragMove:
            case QEvent::Drop:
                return carries_files(static_cast<QDropEvent &>(*event)) && answer(*watched, *event);
            case QEvent::DragLeave:
                notice.hide();
                return watched == &window;
            default:
                return false;
        }
    }

private:
    // A box would take the address of a file as text: over it the files are the window's as well.
    bool answer(const QObject & watched, QEvent & event)
    {
        auto & dragged = static_cast<QDropEvent &>(event);
        if (&watched != &window)
            event.ignore();
        else if (event.type() == QEvent::Drop)
            drop(dragged);
        else
            hover(dragged);
        return true;
    }

    // A drag that is refused is heard on, since the refusal is said as long as it hovers.
    void hover(QDropEvent & event)
    {
        const drop_offer offer = offered(files_in(*event.mimeData()));
        notice.say(offer);
        event.setDropAction(offer.taken ? Qt::CopyAction : Qt::IgnoreAction);
        event.setAccepted(offer.taken || event.type() == QEvent::DragEnter);
    }

    void drop(QDropEvent & event)
    {
        notice.hide();
        const dragged_files files = files_in(*event.mimeData());
        const bool taken = offered(files).taken;
        event.setDropAction(taken ? Qt::CopyAction : Qt::IgnoreAction);
        event.setAccepted(taken);
        if (taken)
            QTimer::singleShot(
                0, this, [this, files, at = on_surface(event.position().toPoint())] { take(files, at); });
    }

    void take(const dragged_files & files, QPoint at)
    {
        if (!offered(files).taken)
            return;
        window.activateWindow();
        guarded(report, [&] { target.take(files, at.x(), at.y()); });
    }

    drop_offer offered(const dragged_files & files) const
    {
        const QWidget * const dialog = QApplication::activeModalWidget();
        if (dialog && dialog != &window)
            return {.sentence = "Please answer the open window first.", .taken = false};
        return target.offer(files);
    }

    QPoint on_surface(QPoint at) const
    {
        const auto * const surface =
            target.surface ? window.findChild<QWidget *>(QString::fromStdString(target.surface->name()))
                           : nullptr;
        return surface ? surface->mapFrom(&window, at) : at;
    }

    QWidget & window;
    drop_target target;
    error_report report;
    drop_notice & notice;
};

}  // namespace

void take_drops(QWidget & window, const drop_target & target, const error_report & report)
{
    new drop_zone(window, target, report);  // owned by the window
}

dragged_files files_in(const QMimeData & dragged)
{
    dragged_files files;
    for (const QUrl & url : dragged.urls())
        if (is_here(url))
            files.paths.push_back(path_in(url));
        else
            files.elsewhere.push_back(url.toString().toStdString());
    return files;
}
