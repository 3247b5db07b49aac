#include "desktop/binder/missing_display.h"
#include "desktop/guarded.h"
#include "desktop/looks/looks.h"
#include "desktop/open_window.h"
#include "desktop/portal.h"
#include "desktop/program_folders.h"
#include "desktop/qt_desktop.h"
#include "recipes/open_flurn.h"
#include "session/connect_all.h"
#include "session/drops.h"
#include "session/start/program_tables.h"
#include "session/start/start_up.h"
#include "session/undo/keep_history.h"
#include "support/files/paths.h"
#include "support/for_now.h"
#include "support/platform_error.h"

#include <QApplication>
#include <QTimer>

#include <string>

namespace {

drop_targets drops_on(windows & all, change_history & history)
{
    return connect_drops(
        all, {.is_busy = [&history] { return history.actions > 0; },
              .act = [&](const std::function<void()> & step) { act_as_user(all.main, history, step); }});
}

void start(windows & all, change_history & history)
{
    all.main.install_folder = program_folder();
    all.main.workers.give_way();
    connect_all(all);
    prepare_data_folder(all.main, data_folder_choice());
    tell_spoiled_tables(all.main);
    keep_history(all.main, history);
    all.main.picSplash.load(joined(all.main.install_folder, "images/splash.png"));
    all.main.desk.show(all.main);
}

int tell(qt_desktop & desk, const std::string & text)
{
    desk.message(text, {});
    return 1;
}

// Two windows on one folder would take each other's work away.
int give_way(qt_desktop & desk, const std::string & data_folder, const std::string & flurn)
{
    switch (ask_open_window(data_folder, flurn)) {
        case window_answer::opens:
            return 0;
        case window_answer::at_work:
            return tell(
                desk,
                "Tessaloom is open already, and at work. Finish or cancel what it does there, then open "
                "this flurn again:\r\n" +
                    flurn);
        default:
            return tell(desk, "Tessaloom is open already, with the data folder\r\n" + data_folder +
                                  "\r\n\r\nPlease go on in its window, or close that one first.");
    }
}

// As for one that is dropped on the window: only before a collage is begun.
bool takes_flurn(const frmMain & main, const change_history & history)
{
    return main.menus_shown && !main.run.run_active && history.actions == 0 &&
           QApplication::activeModalWidget() == nullptr;
}

// Two may have come at once.
void open_if_free(windows & all, change_history & history, const std::string & file)
{
    if (takes_flurn(all.main, history))
        act_as_user(all.main, history, [&] { open_flurn(all.main, file); });
    else
        all.main.desk.message("Finish or cancel this collage first, then open this flurn again:\r\n" + file,
                              {});
}

// As soon as the window is there, as an action of the user's.
void open_when_shown(windows & all, change_history & history, const std::string & file)
{
    QTimer::singleShot(0, QCoreApplication::instance(), [&all, &history, file] {
        guarded([&all](const std::string & text) { all.main.desk.message(text); },
                [&] { open_if_free(all, history, file); });
    });
}

// Another start of the program brought it.
window_answer visited(windows & all, change_history & history, const std::string & flurn)
{
    raise_own_window();
    if (flurn.empty())
        return window_answer::raised;
    if (!takes_flurn(all.main, history))
        return window_answer::at_work;
    open_when_shown(all, history, flurn);
    return window_answer::opens;
}

// `flurn` is the recipe that the program was started with; empty when there is none.
int run(qt_desktop & desk, const std::string & flurn)
{
    change_history history;
    windows all(desk, clock_random());
    // Widgets go before the forms they show.
    const afterwards gone([&desk] { desk.forget_windows(); });
    try {
        with_platform_errors([&] {
            desk.drops = drops_on(all, history);
            start(all, history);
            if (!flurn.empty())
                open_when_shown(all, history, flurn);
        });
    } catch (const data_folder_in_use & taken) {
        return give_way(desk, taken.data_folder, flurn);
    } catch (const end_of_program & end) {
        return end.status;
    } catch (const platform_error & error) {
        desk.message(run_time_error(code(error), told_at_start(error)), {});
        return 1;
    }
    const open_window reachable(all.main.data_folder,
                                [&](const std::string & asked) { return visited(all, history, asked); });
    return desk.run();
}

}  // namespace

int main(int count, char ** words)
{
    take_home_of_user();
    // A flurn's file is all that the program reads of its command line; the toolkit reads none of it.
    const std::string flurn = count > 1 ? absolute_path(words[1]) : "";
    int only_the_name = 1;
    expect_display();
    const bool by_portal = take_choosers_of_desktop();
    QApplication application(only_the_name, words);
    if (by_portal)
        forget_choosers_of_desktop();
    display_found();
    QApplication::setApplicationName(QStringLiteral("tessaloom"));
    QApplication::setQuitOnLastWindowClosed(false);
    apply_looks(application);
    qt_desktop desk;
    return run(desk, flurn);
}
