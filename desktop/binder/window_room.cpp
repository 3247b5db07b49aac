#include "desktop/binder/window_room.h"

#include "desktop/binder/growing_room.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int air = 8;  // pixels below the lowest widget

// The bar of a main window, in pixels; what it shows can't be scrolled.
QSize bar_of(const QWidget & window)
{
    const auto * const main = qobject_cast<const QMainWindow *>(&window);
    if (!main || main->menuBar()->isHidden())
        return {0, 0};
    return main->menuBar()->sizeHint();
}

QSize least_of(const QWidget & content)
{
    const bool is_main = qobject_cast<const QMainWindow *>(&content);
    return content.layout() && !is_main ? content.layout()->totalMinimumSize() : QSize(0, 0);
}

// Direct children that were never hidden come back with their new parent.
void move_children(QWidget & from, QWidget & to)
{
    for (QWidget * each : from.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (each->isWindow())
            continue;
        const bool hidden = each->isHidden();
        each->setParent(&to);
        each->setVisible(!hidden);
    }
}

// All that stands in a dialog, in a widget of its own.
QWidget * taken_content(QWidget & window)
{
    auto * const content = new QWidget;
    content->setObjectName(QStringLiteral("content_area"));
    if (QLayout * const layout = window.layout())
        content->setLayout(layout);
    else
        move_children(window, *content);
    return content;
}

QScrollArea * made_view(QWidget & window)
{
    auto * const view = new QScrollArea(&window);
    view->setObjectName(QStringLiteral("view_area"));
    view->setFrameShape(QFrame::NoFrame);
    view->setFocusPolicy(Qt::NoFocus);
    return view;
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
    if (room)
        window.installEventFilter(this);
}

bool window_room::has_room(QSize wanted) const
{
    const QSize most = room ? room() : wanted;
    return wanted.width() <= most.width() && wanted.height() <= most.height();
}

void window_room::fix(QSize wanted)
{
    wanted = wanted.expandedTo({bar_of(window).width(), 0}).expandedTo(least_of(content ? *content : window));
    if (!view && has_room(wanted)) {
        window.setFixedSize(wanted);
        return;
    }
    take_content();
    whole = wanted - QSize(0, bar_of(window).height());
    content->setFixedSize(whole);
    fit();
}

// Once taken, it stays in the view.
void window_room::take_content()
{
    if (view)
        return;
    const QPointer<QWidget> focus = window.focusWidget();
    auto * const main = qobject_cast<QMainWindow *>(&window);
    content = main ? main->takeCentralWidget() : taken_content(window);
    view = made_view(window);
    if (main)
        main->setCentralWidget(view);
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

void window_room::fold(int most)
{
    QWidget * const folded = growing_widget(window);
    if (!folded || whole.isEmpty())
        return;
    const int height = std::max(std::min(whole.height(), most), least_height(*content, folded));
    end_above(*folded, height);
    content->setFixedSize(content->width(), height);
}

void window_room::fit()
{
    const QSize bar(0, bar_of(window).height()), most = room() - bar;
    fold(most.height());
    const int thickness = view->verticalScrollBar()->sizeHint().width();
    QSize shown = content->size();
    if (shown.height() > most.height())
        shown.rwidth() += thickness;
    if (shown.width() > most.width())
        shown.rheight() += thickness;
    window.setFixedSize(shown.boundedTo(most) + bar);
    if (!qobject_cast<const QMainWindow *>(&window))
        view->setGeometry(window.rect());
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
    if (!view && !has_room(window.size())) {
        const QSize shown = window.size();
        take_content();
        if (!content->layout() || content->layout()->sizeConstraint() != QLayout::SetFixedSize)
            content->setFixedSize(shown);
        content->adjustSize();
        fit();
    }
    if (window.isVisible())
        stay_on_screen();
}

// A layout can't be taken away while it lays out.
bool window_room::eventFilter(QObject * watched, QEvent * event)
{
    const QEvent::Type type = event->type();
    const bool is_window = watched == &window;
    if (!is_window && (watched == content ? type == QEvent::Resize : type == QEvent::LayoutRequest))
        fit();
    if (is_window && type == QEvent::Show)
        scroll();
    if (is_window && type == QEvent::Resize && window.isVisible())
        QMetaObject::invokeMethod(
            this, [this] { scroll(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
