#include "desktop/program_folders.h"
#include "desktop/without_windows.h"
#include "intake/gathered.h"
#include "intake/intake_arguments.h"
#include "intake/intake_report.h"
#include "intake/preparing.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "versions/archive_version.h"
#include "versions/version.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr int stopped_status = 130;

volatile std::sig_atomic_t interrupted = 0;

std::string data_folder_of(const intake_arguments & arguments)
{
    if (arguments.data_folder)
        return absolute_path(*arguments.data_folder);
    const folder_choice choice = data_folder_choice();
    return choice.use_public_folder ? choice.public_folder : program_folder();
}

void show_progress(const preparing & work)
{
    if (::isatty(STDERR_FILENO) != 0 && work.wanted() > 0)
        std::fprintf(stderr, "\rPreparing %zu of %zu photos ", work.done(), work.wanted());
}

void wait_for(preparing & work)
{
    show_progress(work);
    while (!work.is_over_within(std::chrono::milliseconds(100))) {
        show_progress(work);
        if (interrupted != 0)
            work.stop();
    }
    if (::isatty(STDERR_FILENO) != 0 && work.wanted() > 0)
        std::fputs("\r\x1B[K", stderr);
}

void warn_of(const preparing & work)
{
    if (work.ran_without_sandbox())
        std::fputs(
            "tessaloom-intake: this system can't shut the decoders of photos in (it has neither seccomp nor "
            "Landlock); "
            "take photos from people you trust only\n",
            stderr);
}

int report(const intake_arguments & arguments, const intake_result & result)
{
    std::fputs(table_of(result).c_str(), stdout);
    const std::vector<std::string> list = list_of(result.photos);
    if (list.empty()) {
        std::fputs("tessaloom-intake: there is no photo that could be used\n", stderr);
        return 1;
    }
    if (!arguments.list.empty())
        replace_file(arguments.list, text_of(list));
    return 0;
}

int prepare(const intake_arguments & arguments)
{
    intake_result result{
        .photos = gathered(arguments.paths, arguments.deep ? walk::all_folders : walk::one_folder)};
    for (const auto & [path, first] : taken_out_doubles(result.photos))
        result.doubles.emplace_back(path, first);
    prepared_shelf shelf(data_folder_of(arguments));
    worker_pool workers;
    preparing work(std::move(result.photos), shelf, decoder_in(program_folder()), workers);
    wait_for(work);
    warn_of(work);
    if (interrupted != 0)
        return stopped_status;
    result.photos = work.photos();
    result.made = work.made();
    const int status = report(arguments, result);
    shelf.clear_to(arguments.room.value_or(usual_room));
    return status;
}

int run(const intake_arguments & arguments)
{
    switch (arguments.wanted) {
        case intake_arguments::task::help:
            std::fputs(intake_usage().c_str(), stdout);
            return 0;
        case intake_arguments::task::version:
            std::printf("%s",
                        version_told("tessaloom-intake", {toolkit_version(), archive_version()}).c_str());
            return 0;
        default:
            return prepare(arguments);
    }
}

int complain(int status, const std::string & text)
{
    std::fprintf(stderr, "tessaloom-intake: %s\n", text.c_str());
    return status;
}

}  // namespace

int main(int count, char ** words)
{
    take_home_of_user();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, [](int) { interrupted = 1; });
    const windowless_application application(words);
    try {
        return with_platform_errors([&] { return run(parse_intake_arguments({words + 1, words + count})); });
    } catch (const bad_intake_arguments & fault) {
        return complain(2, fault.what);
    } catch (const platform_error & error) {
        return complain(1, error.path.empty() ? error.what() : error.path + ": " + error.what());
    }
}
