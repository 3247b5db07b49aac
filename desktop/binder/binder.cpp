#include "desktop/binder/binder.h"

#include "desktop/binder/captions.h"
#include "desktop/binder/control_display.h"
#include "desktop/binder/control_input.h"
#include "desktop/binder/focus_keeper.h"
#include "desktop/binder/growing_room.h"
#include "desktop/binder/main_keys.h"
#include "desktop/binder/move_keys.h"
#include "desktop/binder/primary_button.h"
#include "desktop/binder/shortcuts.h"
#include "desktop/binder/wheel.h"
#include "desktop/binder/window_room.h"
#include "desktop/qt_text.h"

#include <QCloseEvent>
#include <QHash>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <optional>

namespace {

constexpr int units_of_a_pixel = 15;

class binding : public QObject {
public:
    binding(form & its_form, QWidget & its_window, window_hooks its_hooks);
    bool eventFilter(QObject * watched, QEvent * event) override;

private:
    void bind_control(control & held);
    void bind_focus(control & held, QObject & found);
    void show_control(control & held, QObject & widget);
    void show_widget(control & held, QWidget & widget);
    void give_first_focus();
    void show_window();
    void follow_growth();
    void hide_or_show();
    void show_menu_bar();
    void act(const std::function<void()> & step);
    bool is_covered(const QWidget & widget) const;
    bool key_pressed(const QKeyEvent & event);
    bool moved_about(int pressed);
    bool double_clicked(const QObject & watched);
    bool return_pressed(const QObject & watched, int pressed);
    void focus_moved(const QObject & watched, const QFocusEvent & event);
    void pressed_on(const QObject & watched);

    form & bound;
    QWidget & window;
    window_hooks hooks;
    focus_keeper focus;
    window_room place;
    QHash<QString, QWidget *> behind;  // what each covering control hides
    QHash<const QObject *, control *> shown_by;
    bool is_hidden = false;  // by its form
    int actions = 0;         // of the user, one inside the other
};

binding::binding(form & its_form, QWidget & its_window, window_hooks its_hooks)
    : QObject(&its_window),
      bound(its_form),
      window(its_window),
      hooks(std::move(its_hooks)),
      focus(its_window),
      place(its_window, hooks.room)
{
    window.installEventFilter(this);
    window.installEventFilter(&focus);  // sees keys first: one that waits for its text box asks for no help
    for (control * held : bound.controls())
        bind_control(*held);
    bound.on_shown_change = [guard = QPointer(this)] {
        if (guard)
            guard->show_window();
    };
    show_window();
    if (QWidget * const grown = growing_widget(window))
        new growth_watcher(*grown, [this] { follow_growth(); });  // owned by the widget
    give_first_focus();
}

// A frame that goes with the last of what stands in it.
void show_frame_around(const QWidget & widget)
{
    QWidget * const frame = widget.parentWidget();
    if (!frame || !frame->property("hidesEmpty").toBool())
        return;
    const auto inside = frame->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    frame->setVisible(
        std::any_of(inside.begin(), inside.end(), [](const QWidget * each) { return !each->isHidden(); }));
}

// A search for no name would find any widget.
void binding::give_first_focus()
{
    const QString name = window.property("firstFocus").toString();
    if (auto * const first = name.isEmpty() ? nullptr : window.findChild<QWidget *>(name))
        first->setFocus(Qt::OtherFocusReason);
}

void keep_room(QWidget & widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

void binding::bind_control(control & held)
{
    QObject * const found = widget_of(held, window);
    if (!found)
        return;
    if (auto * const widget = qobject_cast<QWidget *>(found)) {
        widget->installEventFilter(this);
        widget->installEventFilter(&focus);
        leave_wheel_to_focus(*widget);
        if (widget->property("keepsRoom").toBool())
            keep_room(*widget);
        const QString cover = widget->property("coveredBy").toString();
        if (!cover.isEmpty())
            behind.insert(cover, widget);
    } else {
        found->setObjectName(QString::fromStdString(held.name()));
    }
    if (auto * const entry = qobject_cast<QAction *>(found))
        give_keys(*entry, window);
    shown_by.insert(found, &held);
    bind_focus(held, *found);
    listen(held, *found, *this, [this, &held, found](const std::function<void()> & step) {
        act(step);
        show_control(held, *found);
    });
    held.on_shown_change = [guard = QPointer(this), &held, found] {
        if (guard)
            guard->show_control(held, *found);
    };
    show_control(held, *found);
}

// A menu that stands in no bar pops up where the user asked for it.
void binding::bind_focus(control & held, QObject & found)
{
    if (auto * const widget = qobject_cast<QWidget *>(&found))
        held.on_take_focus = [widget = QPointer(widget)] {
            if (widget)
                widget->setFocus(Qt::OtherFocusReason);
        };
    if (auto * const line = qobject_cast<QLineEdit *>(&found))
        if (auto * const text = dynamic_cast<text_box *>(&held))
            text->on_select_all = [line = QPointer(line)] {
                if (line)
                    line->selectAll();
            };
    auto * const entry = dynamic_cast<menu_entry *>(&held);
    auto * const action = qobject_cast<QAction *>(&found);
    if (entry && action && action->menu())
        entry->on_pop_up = [menu = QPointer(action->menu()), this] {
            if (menu)
                menu->popup(window.property("popup_at").toPoint());
        };
}

void binding::show_control(control & held, QObject & widget)
{
    if (auto * const seen = qobject_cast<QWidget *>(&widget)) {
        show_widget(held, *seen);
        return;
    }
    display(held, widget);
    show_menu_bar();
}

void binding::show_widget(control & held, QWidget & widget)
{
    const bool visible = held.visible() && !is_covered(widget);
    if (!held.enabled() || !visible)
        focus.before_loss(widget);
    display(held, widget);
    widget.setVisible(visible);
    if (qobject_cast<QPushButton *>(&widget))
        mark_primary(window);
    if (widget.property("placed").toBool())
        place.follow();
    show_frame_around(widget);
    if (QWidget * const hidden = behind.value(widget.objectName()))
        if (control * const covered = bound.find(hidden->objectName().toStdString()))
            show_widget(*covered, *hidden);
    if (held.enabled() && visible)
        focus.after_return();
}

bool binding::is_covered(const QWidget & widget) const
{
    const control * const cover = bound.find(widget.property("coveredBy").toString().toStdString());
    return cover && cover->visible();
}

void binding::show_window()
{
    window.setWindowTitle(shown(bound.caption()));
    window.setAccessibleName(unspaced(window.windowTitle()));
    if (window.property("stage").toBool()) {
        QPalette colors = window.palette();
        colors.setColor(QPalette::Window, shown_color(bound.back_color()));
        window.setPalette(colors);
    }
    if (bound.width() > 0 && bound.height() > 0)
        place.fix(QSize(bound.width() / units_of_a_pixel, bound.height() / units_of_a_pixel) +
                  growth_of(window));
    if (!bound.loaded())
        fire(hooks.unloaded);
    else if (is_hidden == bound.visible())
        hide_or_show();
}

// Its windows are few, and so are the times.
void binding::follow_growth()
{
    show_window();
    for (control * held : bound.controls())
        if (QObject * const found = widget_of(*held, window))
            show_control(*held, *found);
}

void binding::hide_or_show()
{
    is_hidden = !bound.visible();
    window.setVisible(bound.visible());
}

// A bar without an entry would still take its room.
void binding::show_menu_bar()
{
    auto * const main = qobject_cast<QMainWindow *>(&window);
    if (!main)
        return;
    const QList<QAction *> entries = main->menuBar()->actions();
    main->menuBar()->setVisible(std::any_of(entries.begin(), entries.end(),
                                            [](const QAction * entry) { return entry->isVisible(); }));
}

void binding::act(const std::function<void()> & step)
{
    ++actions;
    guarded(hooks.report, step);
    if (--actions == 0)
        focus.action_over();
}

bool binding::eventFilter(QObject * watched, QEvent * event)
{
    if (watched == &window && event->type() == QEvent::Close) {
        event->ignore();
        act([this] { bound.request_close(); });
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto & pressed = static_cast<const QKeyEvent &>(*event);
        if (return_pressed(*watched, pressed.key()))
            return true;
        auto * const option = qobject_cast<QRadioButton *>(watched);
        if ((option || watched == &window) && moved_about(pressed.key()))
            return true;
        return watched == &window ? key_pressed(pressed)
                                  : option && moved_to_neighbour(*option, pressed.key());
    }
    if (event->type() == QEvent::ShortcutOverride)
        return left_to_window(*watched, static_cast<QKeyEvent &>(*event));
    if (event->type() == QEvent::MouseButtonDblClick)
        return double_clicked(*watched);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        focus_moved(*watched, static_cast<const QFocusEvent &>(*event));
    if (event->type() == QEvent::MouseButtonRelease)
        pressed_on(*watched);
    return false;
}

bool binding::return_pressed(const QObject & watched, int pressed)
{
    auto * const box = dynamic_cast<text_box *>(shown_by.value(&watched));
    if (!box || !box->on_return || (pressed != Qt::Key_Return && pressed != Qt::Key_Enter))
        return false;
    act([box] { box->on_return(); });
    return true;
}

// A window that is covered by another for a while, or that shows a menu, keeps its focus as far as the
// session goes.
void binding::focus_moved(const QObject & watched, const QFocusEvent & event)
{
    control * const held = shown_by.value(&watched);
    const Qt::FocusReason reason = event.reason();
    const bool by_user = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
                         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    if (held && by_user && event.gotFocus() && held->on_enter)
        act([held] { held->on_enter(); });
    if (held && (by_user || reason == Qt::OtherFocusReason) && event.lostFocus() && held->on_leave &&
        bound.loaded())
        act([held] { held->on_leave(); });
}

void binding::pressed_on(const QObject & watched)
{
    control * const held = shown_by.value(&watched);
    if (auto * const text = dynamic_cast<label *>(held); text && text->on_click)
        act([text] { text->click(); });
    if (auto * const frame = dynamic_cast<group *>(held); frame && frame->on_click)
        act([frame] { frame->click(); });
}

// Keys arrive here when no widget of the window took them; a text field takes its "?".
bool binding::key_pressed(const QKeyEvent & event)
{
    auto * const main = qobject_cast<QMainWindow *>(&window);
    if (event.key() == Qt::Key_Escape && !main) {
        act([this] { bound.request_close(); });
        return true;
    }
    if (main && pressed_in_main(*main, event))
        return true;
    std::optional<key> asked;
    if (event.key() == Qt::Key_F1)
        asked = key::f1;
    if (event.key() == Qt::Key_Question || event.key() == Qt::Key_Help)
        asked = key::help;
    if (event.key() == Qt::Key_Escape)
        asked = key::escape;
    if (!asked || !bound.on_key)
        return false;
    act([this, asked] { bound.on_key(*asked); });
    return true;
}

bool binding::moved_about(int pressed)
{
    const std::optional<move_key> asked = move_key_of(pressed);
    if (!asked || !bound.on_move_key)
        return false;
    QWidget * const focused = window.focusWidget();
    const control * const held = focused ? bound.find(focused->objectName().toStdString()) : nullptr;
    bool taken = false;
    act([&] { taken = bound.on_move_key(*asked, held); });
    if (taken)
        follow_selection(focused);
    return taken;
}

// The first of the two clicks has selected the option, unless it fell beside the text.
bool binding::double_clicked(const QObject & watched)
{
    auto * const option = dynamic_cast<option_button *>(bound.find(watched.objectName().toStdString()));
    if (!option || !option->on_double_click || !option->selected())
        return false;
    act([option] { option->on_double_click(); });
    return true;
}

// Names of the toolkit's own widgets begin with "qt_".
bool is_helper(const QWidget & widget)
{
    const QString & name = widget.objectName();
    return name.isEmpty() || name.startsWith(QLatin1String("qt_")) || name.endsWith(QLatin1String("_area"));
}

bool is_shown(control & held, const QWidget & window)
{
    QObject * const found = widget_of(held, window);
    return found && visit_pair(held, *found, [](auto &, auto &) {});
}

}  // namespace

void bind(form & its_form, QWidget & window, window_hooks hooks)
{
    new binding(its_form, window, std::move(hooks));  // owned by the window
}

std::vector<std::string> binding_faults(const form & its_form, const QWidget & window)
{
    std::vector<std::string> faults;
    for (control * held : its_form.controls())
        if (!is_shown(*held, window))
            faults.push_back(its_form.name() + ": no widget for " + held->name());
    for (const QWidget * widget : window.findChildren<QWidget *>())
        if (!is_helper(*widget) && !its_form.find(widget->objectName().toStdString()))
            faults.push_back(its_form.name() + ": no control for " + widget->objectName().toStdString());
    for (const QAction * action : window.findChildren<QAction *>())
        if (!action->objectName().isEmpty() && !its_form.find(action->objectName().toStdString()))
            faults.push_back(its_form.name() + ": no control for " + action->objectName().toStdString());
    return faults;
}
