#include "tests/temporary_folder.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <sys/resource.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {
constexpr uid_t nobody = 65534;
constexpr std::size_t random_letters = 6;  // mkdtemp puts them in the place of as many X
constexpr std::uintmax_t enough_room = std::uintmax_t{1} << 30;

// In memory, where there is room: to flush a file costs nothing there, and most of what a suite waits for is
// the disk.
fs::path place_of_folders()
{
    const fs::path memory("/dev/shm");
    std::error_code missing;
    const bool is_roomy = fs::space(memory, missing).available >= enough_room && !missing;
    const bool is_free_to_choose = std::getenv("TMPDIR") == nullptr;
    return is_free_to_choose && is_roomy && ::access(memory.c_str(), W_OK) == 0 ? memory
                                                                                : fs::temp_directory_path();
}
}  // namespace

void stage_program(const std::string & from, const std::string & to)
{
    for (const fs::directory_entry & entry : fs::directory_iterator(from)) {
        const fs::path place = fs::path(to) / entry.path().filename();
        if (entry.path().filename() == "images")
            fs::create_directory_symlink(fs::absolute(entry.path()), place);
        else
            fs::copy(entry.path(), place, fs::copy_options::recursive);
    }
}

temporary_folder::temporary_folder()
{
    std::string pattern =
        (place_of_folders() / "tessaloom_test_").string() + std::string(random_letters, 'X');
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no temporary folder: " + pattern);
    folder = pattern;
    fs::permissions(folder, fs::perms::all);
}

temporary_folder::~temporary_folder()
{
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

std::string temporary_folder::at(std::string_view name) const
{
    const std::string path = joined(folder, name);
    fs::create_directories(folder_of(path));
    return path;
}

std::string temporary_folder::write(std::string_view name, std::string_view bytes) const
{
    const std::string path = at(name);
    write_file(path, bytes);
    return path;
}

as_ordinary_user::as_ordinary_user()
{
    if (::geteuid() == 0 && ::seteuid(nobody) != 0)
        throw std::runtime_error("can't become an ordinary user");
}

as_ordinary_user::~as_ordinary_user()
{
    if (::getuid() == 0 && ::seteuid(0) != 0)
        std::abort();
}

full_disk::full_disk(unsigned long bytes) : before(0)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

full_disk::~full_disk()
{
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = before;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}
