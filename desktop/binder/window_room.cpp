#include "desktop/binder/window_room.h"

#include "desktop/binder/growing_room.h"
#include "desktop/binder/narrow_picture.h"
#include "desktop/binder/window_foot.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QPalette>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int air = 8;  // pixels below the lowest widget
constexpr int least_share_of_content = 4;

// The bar of a main window, in pixels; what it shows can't be scrolled.
QSize bar_of(const QWidget & window)
{
    const auto * const main = qobject_cast<const QMainWindow *>(&window);
    if (!main || main->menuBar()->isHidden())
        return {0, 0};
    return main->menuBar()->sizeHint();
}

bool is_laid_out(const QWidget & content)
{
    return content.layout() && !is_main_window(content);
}

QSize least_of(const QWidget & content)
{
    return is_laid_out(content) ? content.layout()->totalMinimumSize() : QSize(0, 0);
}

// Direct children that were never hidden come back with their new parent.
void move_children(QWidget & from, QWidget & to, const QWidget * but)
{
    for (QWidget * each : from.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (each->isWindow() || each == but || each == &to)
            continue;
        const bool hidden = each->isHidden();
        each->setParent(&to);
        each->setVisible(!hidden);
    }
}

// All that stands in a dialog but its foot, in a widget of its own.
QWidget * taken_content(QWidget & window, const QWidget * foot)
{
    auto * const content = new QWidget(&window);  // a window of its own would have a tab order of its own
    content->setObjectName(QStringLiteral("content_area"));
    if (QLayout * const layout = window.layout())
        content->setLayout(layout);
    else
        move_children(window, *content, foot);
    return content;
}

// A style sheet takes colours that were set since the window was made back when a widget gets another parent.
class kept_colors {
public:
    explicit kept_colors(const QWidget & window)
    {
        for (QWidget * each : window.findChildren<QWidget *>())
            if (each->testAttribute(Qt::WA_SetPalette))
                colors.emplace_back(each, each->palette());
    }
    ~kept_colors()
    {
        for (const auto & [widget, own] : colors)
            if (widget->palette() != own)
                widget->setPalette(own);
    }
    kept_colors(const kept_colors &) = delete;
    kept_colors & operator=(const kept_colors &) = delete;

private:
    std::vector<std::pair<QWidget *, QPalette>> colors;
};

QScrollArea * made_view(QWidget & window)
{
    auto * const view = new QScrollArea(&window);
    view->setObjectName(QStringLiteral("view_area"));
    view->setFrameShape(QFrame::NoFrame);
    view->setFocusPolicy(Qt::NoFocus);
    return view;
}

// What leads the content where it is shown, and makes do with less than its form gives; none in most windows.
const QWidget * shrinking_widget(const QWidget & window)
{
    const QByteArray name = window.property("shrinks").toByteArray();
    const auto * const found =
        name.isEmpty() ? nullptr : window.findChild<QWidget *>(QString::fromUtf8(name));
    return found && !found->isHidden() ? found : nullptr;
}

// What the lowest of its visible widgets needs; the growing one may be folded.
int least_height(const QWidget & content, const QWidget * folded)
{
    int height = 0;
    for (const QWidget * each : content.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        if (!each->isHidden())
            height = std::max(height, each->y() + (each == folded ? each->minimumSizeHint().height()
                                                                  : each->height() + air));
    return height;
}

}  // namespace

window_room::window_room(QWidget & kept_window, std::function<QSize()> its_room)
    : window(kept_window), room(std::move(its_room))
{
    window.installEventFilter(this);
}

bool window_room::has_room(QSize wanted) const
{
    const QSize most = room ? room() : wanted;
    return wanted.width() <= most.width() && wanted.height() <= most.height();
}

void window_room::fix(QSize wanted)
{
    told = wanted;
    settle();
}

// A layout takes the room off what can do with less.
QSize window_room::shrunk(QSize wanted) const
{
    const QWidget & laid_out = content ? *content : window;
    const bool shrinks =
        is_laid_out(laid_out) && laid_out.layout()->sizeConstraint() != QLayout::SetFixedSize;
    return shrinks && has_room(least_of(laid_out) + QSize(0, foot_height())) && room
               ? wanted.boundedTo(room())
               : wanted;
}

// Before it is shown, a window may still ask for less.
void window_room::settle()
{
    if (told.isEmpty())
        return;
    const QSize foot_room(0, foot_height()), least = least_of(content ? *content : window) + foot_room;
    const QSize wanted = shrunk(told.expandedTo({bar_of(window).width(), 0}).expandedTo(least));
    if (!view && (has_room(wanted) || !window.isVisible())) {
        window.setFixedSize(wanted);
        return;
    }
    take_content(wanted.height());
    whole = wanted - QSize(0, bar_of(window).height() + foot_height());
    fit();
}

// Once taken, it stays in the view.
void window_room::take_content(int whole_height)
{
    if (view)
        return;
    const kept_colors as_they_are(window);
    const QPointer<QWidget> focus = window.focusWidget();
    auto * const main = qobject_cast<QMainWindow *>(&window);
    take_foot(whole_height);
    content = main ? main->takeCentralWidget() : taken_content(window, foot);
    view = made_view(window);
    if (main)
        main->setCentralWidget(foot ? stacked(window, *view, *foot) : view);
    view->setWidget(content);
    // The window's own colour, which may change, shines through.
    content->setAutoFillBackground(false);
    view->viewport()->setAutoFillBackground(false);
    content->show();
    view->show();
    follow_focus();
    content->installEventFilter(this);
    if (QWidget * const folded = growing_widget(window))
        folded->installEventFilter(this);
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

// What a dialog is left by stays in sight, where that leaves room for what is scrolled.
void window_room::take_foot(int whole_height)
{
    QLayout * const row = last_row(window);
    QWidget * const panel = row ? nullptr : panel_of_buttons(window);
    const QSize most = room(), needed = row     ? row->minimumSize() + QSize(4 * air, 2 * air)
                                        : panel ? panel->minimumSizeHint() + QSize(4 * air, 2 * air)
                                                : most;
    if (needed.width() > most.width() || needed.height() > most.height() / least_share_of_content)
        return;
    foot = row ? taken_row(window, *row) : is_main_window(window) ? foot_around(window, *panel) : panel;
    placed_foot = row || is_main_window(window) ? 0 : whole_height - panel->y();
    foot->installEventFilter(this);
}

int window_room::foot_height() const
{
    if (placed_foot > 0 || !foot)
        return placed_foot;
    return foot->isHidden() ? 0 : foot->sizeHint().height();
}

void window_room::place_foot()
{
    const int left = placed_foot > 0 ? foot->x() : 0, top = window.height() - foot_height();
    const int width = placed_foot > 0 ? std::min(foot->width(), window.width() - 2 * left) : window.width();
    foot->setGeometry(left, top, width, placed_foot > 0 ? foot->height() : foot_height());
}

// The toolkit scrolls for the Tab key alone. What is seen in part stays: it may be about to be clicked.
void window_room::follow_focus()
{
    const auto show = [this](QWidget * now) {
        if (now && view && content->isAncestorOf(now) && now->isVisible() && now->visibleRegion().isEmpty())
            view->ensureWidgetVisible(now);
    };
    QObject::connect(qApp, &QApplication::focusChanged, this,
                     [show](QWidget *, QWidget * now) { show(now); });
}

int window_room::bar_thickness() const
{
    return view->verticalScrollBar()->sizeHint().width();
}

void window_room::fold(QSize most)
{
    if (whole.isEmpty())
        return;
    if (const QWidget * const shrinking = shrinking_widget(window)) {
        content->setFixedSize(whole.boundedTo(most.expandedTo(shrinking->property("leastRoom").toSize())));
        return;
    }
    const int width = narrowed_width(window, whole.width(), most.width(), bar_thickness());
    int height = whole.height();
    if (QWidget * const folded = growing_widget(window)) {
        height = std::max(std::min(height, most.height()), least_height(*content, folded));
        end_above(*folded, height);
    }
    content->setFixedSize(width, height);
}

void window_room::fit()
{
    const QSize bar(0, bar_of(window).height() + foot_height()), most = room() - bar;
    fold(most);
    QSize shown = content->size();
    if (shown.height() > most.height())
        shown.rwidth() += bar_thickness();
    if (shown.width() > most.width())
        shown.rheight() += bar_thickness();
    window.setFixedSize(shown.boundedTo(most) + bar);
    if (is_main_window(window))
        return;
    view->setGeometry(window.rect().adjusted(0, 0, 0, -foot_height()));
    if (foot)
        place_foot();
}

void window_room::follow()
{
    if (view)
        fit();
}

void window_room::stay_on_screen()
{
    const QRect free = window.screen()->availableGeometry(), at = window.frameGeometry();
    const QPoint corner(std::max(free.left(), std::min(at.left(), free.right() + 1 - at.width())),
                        std::max(free.top(), std::min(at.top(), free.bottom() + 1 - at.height())));
    if (corner != at.topLeft())
        window.move(corner);
}

// A window that its layout makes too large: its content keeps the size that it had.
void window_room::scroll()
{
    settle();
    if (!view)
        window.resize(shrunk(window.size()));
    if (!view && !has_room(window.size())) {
        const QSize shown = window.size();
        take_content(shown.height());
        if (!content->layout() || content->layout()->sizeConstraint() != QLayout::SetFixedSize)
            content->setFixedSize(shown - QSize(0, foot_height()));
        content->adjustSize();
        fit();
    }
    if (room && window.isVisible())
        stay_on_screen();
}

// A layout can't be taken away while it lays out.
bool window_room::eventFilter(QObject * watched, QEvent * event)
{
    const QEvent::Type type = event->type();
    const bool is_window = watched == &window;
    if (!is_window && (watched == content ? type == QEvent::Resize : type == QEvent::LayoutRequest))
        fit();
    if (watched == foot && (type == QEvent::ShowToParent || type == QEvent::HideToParent))
        settle();
    if (is_window && type == QEvent::Show)
        scroll();
    const bool asks_anew = type == QEvent::LayoutRequest && watched == (view ? content.data() : &window);
    if (window.isVisible() && (asks_anew || (is_window && type == QEvent::Resize)))
        QMetaObject::invokeMethod(
            this, [this] { scroll(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
