#include "session/undo/keep_history.h"

#include "session/main_window/redraw.h"
#include "support/for_now.h"

#include <tuple>

namespace {

enum class manner { step, typing, amendment };

struct action {
    manner how = manner::step;
    const control * by = nullptr;
};

void show_steps(frmMain & main, const change_history & history)
{
    main.mnuUndo.enable(history.steps.before() != nullptr);
    main.mnuRedo.enable(history.steps.after() != nullptr);
}

// Where the user may go on typing in the same step.
const control * typed_in_after(change_history & history, moment now, action done)
{
    if (done.how == manner::typing && history.typed_in == done.by)
        return history.steps.lengthen(std::move(now)) ? done.by : nullptr;
    const bool is_step = history.steps.add(std::move(now));
    return is_step && done.how == manner::typing ? done.by : nullptr;
}

void add(frmMain & main, change_history & history, action done)
{
    moment now = moment_of(main, history.steps.present());
    if (done.how == manner::amendment) {
        history.steps.amend(std::move(now));
        history.typed_in = nullptr;
    } else {
        history.typed_in = typed_in_after(history, std::move(now), done);
    }
}

void note(frmMain & main, change_history & history, action done)
{
    if (!main.menus_shown && history.steps.begun()) {
        add(main, history, done);
    } else {
        history.steps.clear();
        history.typed_in = nullptr;
        if (!main.menus_shown)
            history.steps.begin(moment_of(main, {}));
    }
    show_steps(main, history);
}

// What a handler sets off by itself belongs to the user's action that it answers.
void act(frmMain & main, change_history & history, const std::function<void()> & handler, action done)
{
    if (history.actions > 0) {
        handler();
        return;
    }
    try {
        const for_now inside(history.actions, 1);
        handler();
    } catch (...) {
        note(main, history, done);
        throw;
    }
    note(main, history, done);
}

bool is_at_rest(const frmMain & main, const change_history & history)
{
    return history.actions == 0 && !main.run.run_active && !main.menus_shown;
}

// A photo that is gone since is missing from what comes back, too.
void redraw_without_the_lost(frmMain & main, change_history & history)
{
    if (std::get<left_out_photos>(history.steps.present().beside_controls).photos == main.left_out.photos)
        return;
    const for_now inside(history.actions, 1);
    {
        const for_now kept(main.collage.keeps_turns, true);
        redraw_sample(main);
    }
    history.steps.amend(moment_of(main, history.steps.present()));
}

// What changed without an action of the user's goes with where it stands.
void go(frmMain & main, change_history & history, const moment * (step_history<moment>::*where)() const,
        void (step_history<moment>::*step)())
{
    step_history<moment> & steps = history.steps;
    if (!is_at_rest(main, history) || (steps.*where)() == nullptr)
        return;
    steps.amend(moment_of(main, steps.present()));
    put_back(main, *(steps.*where)(), steps.present());
    (steps.*step)();
    moment shown = steps.present();
    shown.loads = main.picSample.load_count();
    steps.amend(std::move(shown));
    history.typed_in = nullptr;
    redraw_without_the_lost(main, history);
    show_steps(main, history);
}

// Keeps what it hooks as short-lived as the handlers themselves.
struct watcher {
    frmMain & main;
    change_history & history;

    void watch(std::function<void()> & handler, action done) const
    {
        if (handler)
            handler = [to = *this, done, answer = std::move(handler)] {
                act(to.main, to.history, answer, done);
            };
    }

    // What the keyboard's ways into a box and out of it draw belongs to what is typed there, and leaving it
    // ends that.
    void watch_ways(control & box) const
    {
        const action done{.how = manner::amendment, .by = &box};
        box.on_leave = [left = std::move(box.on_leave)] { fire(left); };
        watch(box.on_leave, done);
        watch(box.on_enter, done);
    }

    void watch_typing(std::function<void()> & handler, control & box) const
    {
        watch(handler, {.how = manner::typing, .by = &box});
        watch_ways(box);
    }
};

// The display and the full-size run change no setting.
manner manner_of(const frmMain & main, const control & each)
{
    const bool amends = &each == &main.optPreview || &each == &main.optSample || &each == &main.cmdFlurn;
    return amends ? manner::amendment : manner::step;
}

template <typename Control, typename Hook>
void watch_as(control & each, const Hook & hook)
{
    if (auto * const known = dynamic_cast<Control *>(&each))
        hook(*known);
}

void watch_control(const watcher & by, control & each)
{
    const action done{.how = manner_of(by.main, each), .by = &each};
    const auto clicked = [&](auto & known) { by.watch(known.on_click, done); };
    watch_as<button>(each, clicked);
    watch_as<option_button>(each, clicked);
    watch_as<picture>(each, clicked);
    watch_as<group>(each, clicked);
    watch_as<label>(each, clicked);
    watch_as<menu_entry>(each, clicked);
    watch_as<check_box>(each, [&](check_box & known) { by.watch(known.on_change, done); });
    watch_as<text_box>(each, [&](text_box & known) {
        by.watch_typing(known.on_change, known);
        by.watch(known.on_return, {.how = manner::amendment, .by = &known});
    });
    watch_as<combo_box>(each, [&](combo_box & known) {
        by.watch(known.on_click, done);
        by.watch_typing(known.on_typed, known);
    });
}

}  // namespace

void keep_history(frmMain & main, change_history & history)
{
    const watcher by{main, history};
    for (control * each : main.controls())
        watch_control(by, *each);
    main.mnuUndo.on_click = [&] {
        go(main, history, &step_history<moment>::before, &step_history<moment>::step_back);
    };
    main.mnuRedo.on_click = [&] {
        go(main, history, &step_history<moment>::after, &step_history<moment>::step_forward);
    };
    main.picSample.on_popup = [&] { main.mnuChanges.pop_up(); };
    show_steps(main, history);
}

void act_as_user(frmMain & main, change_history & history, const std::function<void()> & step)
{
    act(main, history, step, {});
}
