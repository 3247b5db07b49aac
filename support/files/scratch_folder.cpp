#include "support/files/scratch_folder.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds pause{5};
constexpr std::size_t random_letters = 6;         // mkdtemp puts them in the place of as many X
constexpr std::string_view alive_name = "alive";  // the lock of one scratch folder
constexpr std::string_view turn_name = "turn";    // the lock of whoever makes or clears one

void make_place(const std::string & place)
{
    std::filesystem::create_directories(folder_of(place));
    if (::mkdir(place.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        throw from_system(errno, place);
    struct stat found {};
    if (::lstat(place.c_str(), &found) != 0)
        throw from_system(errno, place);
    if (!S_ISDIR(found.st_mode) || found.st_uid != ::geteuid())
        throw platform_error(error_number::permission_denied, "This folder is somebody else's.", place);
}

folder_lock own_turn(const std::string & place)
{
    for (;;) {
        if (std::optional<folder_lock> taken = folder_lock::taken(place, turn_name))
            return std::move(*taken);
        std::this_thread::sleep_for(pause);
    }
}

// What can't be removed stays for the next time. Somebody may be writing there still, so it is tried more
// than once.
void remove_quietly(const std::string & folder)
{
    std::error_code ignored;
    for (int attempt = 0; attempt < 3 && folder_exists(folder); ++attempt)
        std::filesystem::remove_all(folder, ignored);
}

// Never destroyed: a signal may come while the program is at its end.
struct scratch_list {
    std::mutex guard;
    std::set<std::string> folders;
};

scratch_list & living_folders()
{
    static scratch_list & living = *new scratch_list;
    return living;
}

// Whoever made a folder holds its lock from the same turn on, so a lock that is free tells of a program that
// is gone.
void clear_left(const std::string & place)
{
    for (const std::string & name : folders_in(place)) {
        const std::string left = joined(place, name);
        std::optional<folder_lock> taken;
        tried([&] { taken = folder_lock::taken(left, alive_name); });
        if (taken)
            remove_quietly(left);
    }
}

std::string made_in(const std::string & place)
{
    std::string name = joined(place, std::string(random_letters, 'X'));
    if (::mkdtemp(name.data()) == nullptr)
        throw from_system(errno, place);
    return name;
}

}  // namespace

scratch_folder::scratch_folder(const std::string & place)
{
    with_platform_errors([&] {
        make_place(place);
        const folder_lock turn = own_turn(place);
        clear_left(place);
        folder = made_in(place);
        alive = folder_lock::taken(folder, alive_name).value_or(folder_lock());
        const std::lock_guard held(living_folders().guard);
        living_folders().folders.insert(folder);
    });
}

scratch_folder::~scratch_folder()
{
    const std::lock_guard held(living_folders().guard);
    living_folders().folders.erase(folder);
    remove_quietly(folder);
}

void remove_scratch_folders()
{
    const std::lock_guard held(living_folders().guard);
    for (const std::string & folder : living_folders().folders)
        remove_quietly(folder);
}

void clear_away_on_signals()
{
    sigset_t ending;
    sigemptyset(&ending);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&ending, number);
    ::pthread_sigmask(SIG_BLOCK, &ending, nullptr);
    std::thread([ending] {
        int number = 0;
        ::sigwait(&ending, &number);
        remove_scratch_folders();
        remove_unfinished_files();
        ::signal(number, SIG_DFL);
        ::pthread_sigmask(SIG_UNBLOCK, &ending, nullptr);
        ::raise(number);
    }).detach();
}

std::string scratch_place()
{
    const char * const wanted = std::getenv("TMPDIR");
    const bool is_usable = wanted != nullptr && *wanted == '/' && folder_exists(wanted);
    return joined(is_usable ? wanted : "/tmp", "tessaloom-" + std::to_string(::geteuid()));
}
