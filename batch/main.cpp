#include "batch/batch_desktop.h"
#include "batch/batch_session.h"
#include "batch/job_run.h"
#include "batch/report.h"
#include "batch/usage.h"
#include "desktop/program_folders.h"
#include "support/files/paths.h"
#include "support/files/scratch_folder.h"
#include "support/platform_error.h"
#include "versions/version.h"

#include <QGuiApplication>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

exit_status run(const std::vector<std::string> & words)
{
    const batch_arguments arguments = parse_arguments(words);
    if (arguments.wanted == batch_arguments::task::help) {
        std::printf("%s", usage().c_str());
        return exit_status::made;
    }
    if (arguments.wanted == batch_arguments::task::version) {
        std::printf("%s", version_told("tessaloom-batch", libraries_in_use()).c_str());
        return exit_status::made;
    }
    batch_folders folders{
        .install_folder = program_folder(), .data = data_folder_choice(), .scratch = scratch_place()};
    if (arguments.data_folder)
        folders.data = {.use_public_folder = true, .public_folder = absolute_path(*arguments.data_folder)};
    if (arguments.wanted == batch_arguments::task::report) {
        std::printf("%s", report(folders).c_str());
        return exit_status::made;
    }
    return arguments.wanted == batch_arguments::task::jobs ? run_jobs(arguments, folders)
                                                           : run_batch(arguments, folders);
}

int complain(exit_status status, const std::string & text)
{
    std::fprintf(stderr, "tessaloom-batch: %s\n", in_one_line(text).c_str());
    return static_cast<int>(status);
}

// A stream that the caller has closed must not come back as a file of the session's: what is written there
// fails.
void hold_standard_streams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) == -1)
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

// Text is drawn without a display, the same wherever the program is started: what a desktop exports for its
// windows has no say here.
void leave_the_desktop()
{
    for (const char * name :
         {"QT_QPA_PLATFORM_PLUGIN_PATH", "QT_QPA_PLATFORMTHEME", "QT_QPA_GENERIC_PLUGINS", "QT_QPA_FONTDIR",
          "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_SCALE_FACTOR_ROUNDING_POLICY",
          "QT_ENABLE_HIGHDPI_SCALING", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_USE_PHYSICAL_DPI", "QT_FONT_DPI"})
        qunsetenv(name);
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

// Numbers and lists are printed, not shown: a reader that has gone and a full disk are told.
exit_status with_output_told(exit_status status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    throw from_system(errno, "standard output");
}

}  // namespace

int main(int count, char ** words)
{
    hold_standard_streams();
    take_home_of_user();
    clear_away_on_signals();
    // What the toolkit has to say of its surroundings is of no use here: standard error holds the session's
    // messages.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // A reader of standard output that has gone is an error like any other, not the end.
    std::signal(SIGPIPE, SIG_IGN);
    leave_the_desktop();
    int no_arguments = 1;
    const QGuiApplication application(no_arguments, words);
    try {
        return static_cast<int>(with_output_told(run({words + 1, words + count})));
    } catch (const bad_arguments & fault) {
        return complain(exit_status::bad_arguments, fault.what);
    } catch (const end_of_program & ended) {
        return ended.status;
    } catch (const platform_error & error) {
        return complain(exit_status::not_made, told(error));
    }
}
