#include "desktop/looks/ways_to_begin.h"

#include "desktop/looks/motifs.h"
#include "desktop/looks/start_page.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// In pixels. The row stands on the black below the name of the program.
constexpr int row_top = 384, usual_width = 128, air_inside = 6;
constexpr int usual_picture = 48, least_picture = 20;  // rows; half as many again across
constexpr int art_center = 480;                        // in the start picture, which is black left of its art

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
        return QSize(usual_width, usual_picture + below_picture())
            .expandedTo(minimumSizeHint() + QSize(air_inside, 0));
    }

    QSize minimumSizeHint() const override
    {
        return {fontMetrics().horizontalAdvance(caption_of(action)) + air_inside,
                least_picture + below_picture()};
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
        const int high = std::min(usual_picture, height() - below_picture());
        const double wide = 1.5 * high, top = (height() - high - below_picture()) / 2.0 + air_inside;
        draw_motif(painter, picture, QRectF((width() - wide) / 2, top, wide, high));
        painter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        painter.drawText(QRectF(0, top + high, width(), below_picture() - air_inside), Qt::AlignCenter,
                         caption_of(action));
    }

private:
    int below_picture() const { return fontMetrics().height() + 3 * air_inside; }

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

// Keeps the ways below the start picture, and both inside what holds them.
class begin_row : public QObject {
public:
    explicit begin_row(QWidget & start_picture)
        : QObject(&start_picture), splash(start_picture), drawn(start_picture.geometry())
    {
        for (const way & each : ways)
            if (auto * const action = splash.window()->findChild<QAction *>(QLatin1String(each.action)))
                add(*action, each.picture);
        splash.installEventFilter(this);
        splash.parentWidget()->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject * watched, QEvent * event) override
    {
        const QEvent::Type type = event->type();
        if (watched != &splash
                ? type == QEvent::Resize
                : type == QEvent::ShowToParent || type == QEvent::HideToParent || type == QEvent::Move ||
                      type == QEvent::Resize || type == QEvent::FontChange)
            follow();
        return QObject::eventFilter(watched, event);
    }

private:
    void add(QAction & action, motif picture)
    {
        auto * const button = new begin_button(action, picture, *splash.parentWidget());
        buttons.push_back(button);
        connect(&action, &QAction::triggered, this, [this, button] { last_used = button; });
    }

    start_sizes sizes() const
    {
        QSize usual, least;
        for (const begin_button * each : buttons) {
            usual = usual.expandedTo(each->sizeHint());
            least = least.expandedTo(each->minimumSizeHint());
        }
        return {drawn, row_top, art_center, usual, least, static_cast<int>(buttons.size())};
    }

    void follow()
    {
        if (std::exchange(following, true))
            return;
        splash.setProperty("leastRoom", least_start(sizes()));
        const start_places places = placed_start(sizes(), splash.parentWidget()->size());
        splash.setGeometry(places.picture);
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            buttons[i]->setGeometry(places.ways[i]);
            buttons[i]->raise();
        }
        if (buttons.front()->isHidden() != splash.isHidden())
            show_or_hide();
        following = false;
    }

    // Each that goes passes the keyboard on to the next one, which is not where the user left it.
    void show_or_hide()
    {
        const bool shown = !splash.isHidden();
        for (begin_button * each : buttons)
            each->setVisible(shown);
        if (shown && last_used)
            last_used->setFocus(Qt::OtherFocusReason);
    }

    QWidget & splash;
    QRect drawn;  // where the form has the start picture
    std::vector<begin_button *> buttons;
    begin_button * last_used = nullptr;  // by the button, the menu or its letter
    bool following = false;
};

}  // namespace

void add_ways_to_begin(QWidget & main_window)
{
    if (auto * const splash = main_window.findChild<QWidget *>(QStringLiteral("picSplash")))
        new begin_row(*splash);  // owned by the start picture
}
