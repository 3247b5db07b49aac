#include "batch/batch_desktop.h"
#include "batch/batch_session.h"
#include "desktop/program_folders.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/scratch_folder.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

exit_status run(const std::vector<std::string> & words)
{
    const batch_arguments arguments = parse_arguments(words);
    if (arguments.wanted == batch_arguments::task::help) {
        std::printf("%s", usage().c_str());
        return exit_status::made;
    }
    if (arguments.wanted == batch_arguments::task::version) {
        std::printf("tessaloom-batch %s\n", TESSALOOM_VERSION);
        return exit_status::made;
    }
    batch_folders folders{
        .install_folder = program_folder(), .data = data_folder_choice(), .scratch = scratch_place()};
    if (arguments.data_folder)
        folders.data = {.use_public_folder = true, .public_folder = absolute_path(*arguments.data_folder)};
    return run_batch(arguments, folders);
}

int complain(exit_status status, const std::string & text)
{
    std::fprintf(stderr, "tessaloom-batch: %s\n", in_one_line(text).c_str());
    return static_cast<int>(status);
}

}  // namespace

int main(int count, char ** words)
{
    remove_scratch_folders_on_signals();
    // What the toolkit has to say of its surroundings is of no use here: standard error holds the session's
    // messages.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Fonts and text need the toolkit, a display doesn't have to be there.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int no_arguments = 1;
    const QGuiApplication application(no_arguments, words);
    try {
        return static_cast<int>(run({words + 1, words + count}));
    } catch (const bad_arguments & fault) {
        return complain(exit_status::bad_arguments, fault.what);
    } catch (const end_of_program & ended) {
        return ended.status;
    } catch (const platform_error & error) {
        return complain(exit_status::not_made, told(error));
    }
}
