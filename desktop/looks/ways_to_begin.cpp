#include "desktop/looks/ways_to_begin.h"

#include "desktop/looks/motifs.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// In pixels. The row stands on the black below the name of the program.
constexpr int row_top = 384, least_width = 128, picture_width = 72, picture_height = 48, air = 6, gap = 8,
              least_left = 16;
constexpr int art_center = 480;  // in the start picture, which is black left of its art

struct way {
    const char * action;
    motif picture;
};
constexpr way ways[] = {{"mnuQuick", motif::blocks},
                        {"mnuDesigned", motif::cards},
                        {"mnuMatrix", motif::grid},
                        {"mnuLettering", motif::letter},
                        {"mnuPuzzle", motif::pieces}};

QString caption_of(const QAction & action)
{
    return action.text().remove(QLatin1Char('&')).trimmed();
}

// A picture with the caption of its action below.
class begin_button : public QAbstractButton {
public:
    begin_button(QAction & its_action, motif its_picture, QWidget & parent)
        : QAbstractButton(&parent), action(its_action), picture(its_picture)
    {
        setObjectName(action.objectName() + QLatin1String("_area"));
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        connect(this, &QAbstractButton::clicked, &action, &QAction::trigger);
        connect(&action, &QAction::changed, this, [this] { follow(); });
        follow();
    }

    QSize sizeHint() const override
    {
        const int text = fontMetrics().horizontalAdvance(caption_of(action)) + 2 * air;
        return {std::max(least_width, text), picture_height + fontMetrics().height() + 3 * air};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool lit = underMouse() || hasFocus() || isDown();
        painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2) : QPen(QColor("#3f444a")));
        painter.setBrush(lit ? palette().color(QPalette::Button) : palette().color(QPalette::Base));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
        draw_motif(painter, picture,
                   QRectF((width() - picture_width) / 2.0, air, picture_width, picture_height));
        painter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        painter.drawText(rect().adjusted(0, picture_height + air, 0, 0), Qt::AlignCenter, caption_of(action));
    }

private:
    void follow()
    {
        setAccessibleName(caption_of(action));
        setToolTip(action.toolTip() == action.text() ? QString() : action.toolTip());
        setEnabled(action.isEnabled());
        update();
    }

    QAction & action;
    motif picture;
};

// Keeps the row where the start picture is.
class begin_row : public QObject {
public:
    explicit begin_row(QWidget & start_picture) : QObject(&start_picture), splash(start_picture)
    {
        for (const way & each : ways)
            if (auto * const action = splash.window()->findChild<QAction *>(QLatin1String(each.action)))
                buttons.push_back(new begin_button(*action, each.picture, *splash.parentWidget()));
        splash.installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject * watched, QEvent * event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::ShowToParent || type == QEvent::HideToParent || type == QEvent::Move ||
            type == QEvent::Resize || type == QEvent::FontChange)
            follow();
        return QObject::eventFilter(watched, event);
    }

private:
    void follow()
    {
        int width = -gap;
        for (const begin_button * each : buttons)
            width += each->sizeHint().width() + gap;
        int left = std::max(least_left, splash.x() + art_center - width / 2);
        for (begin_button * each : buttons) {
            each->setGeometry({{left, splash.y() + row_top}, each->sizeHint()});
            each->setVisible(!splash.isHidden());
            each->raise();
            left += each->width() + gap;
        }
    }

    QWidget & splash;
    std::vector<begin_button *> buttons;
};

}  // namespace

void add_ways_to_begin(QWidget & main_window)
{
    if (auto * const splash = main_window.findChild<QWidget *>(QStringLiteral("picSplash")))
        new begin_row(*splash);  // owned by the start picture
}
