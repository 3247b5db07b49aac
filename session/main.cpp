#include "desktop/binder/missing_display.h"
#include "desktop/guarded.h"
#include "desktop/looks/looks.h"
#include "desktop/open_window.h"
#include "desktop/portal.h"
#include "desktop/program_folders.h"
#include "desktop/qt_desktop.h"
#include "session/connect_all.h"
#include "session/drops.h"
#include "session/start/start_up.h"
#include "session/undo/keep_history.h"
#include "support/files/paths.h"
#include "support/for_now.h"
#include "support/platform_error.h"

#include <QApplication>

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
    connect_all(all);
    prepare_data_folder(all.main, data_folder_choice());
    keep_history(all.main, history);
    all.main.picSplash.load(joined(all.main.install_folder, "images/splash.png"));
    all.main.desk.show(all.main);
}

// Two windows on one folder would take each other's work away.
int give_way(qt_desktop & desk, const std::string & data_folder)
{
    raise_open_window(data_folder);
    desk.message("Tessaloom is open already, with the data folder\r\n" + data_folder +
                     "\r\n\r\nPlease go on in its window, or close that one first.",
                 {});
    return 1;
}

int run(qt_desktop & desk)
{
    change_history history;
    windows all(desk, clock_random());
    // Widgets go before the forms they show.
    const afterwards gone([&desk] { desk.forget_windows(); });
    try {
        with_platform_errors([&] {
            desk.drops = drops_on(all, history);
            start(all, history);
        });
    } catch (const data_folder_in_use & taken) {
        return give_way(desk, taken.data_folder);
    } catch (const end_of_program & end) {
        return end.status;
    } catch (const platform_error & error) {
        desk.message(run_time_error(code(error), told(error)), {});
        return 1;
    }
    const open_window reachable(all.main.data_folder, raise_own_window);
    return desk.run();
}

}  // namespace

int main(int, char ** words)
{
    int only_the_name = 1;  // the program reads no command line, nor lets the toolkit read one
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
    return run(desk);
}
