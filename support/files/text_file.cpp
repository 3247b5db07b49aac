#include "support/files/text_file.h"

#include "support/files/file_steps.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <optional>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t chunk_size = 1 << 16;
constexpr std::size_t piece_size = 1 << 12;  // written at a time

// A file that is to be made can only be missing when its folder is.
platform_error from_opening(int system_number, const std::string & path, int flags)
{
    if (system_number == ENOENT && (flags & O_CREAT) != 0)
        return {error_number::path_not_found, "The folder does not exist.", path};
    return from_system(system_number, path);
}

class descriptor {
public:
    descriptor(const std::string & path, int flags) : number(-1), name(path)
    {
        if ((flags & O_CREAT) != 0)
            pass_gate(file_step::make, path);
        number = ::open(path.c_str(), flags | O_CLOEXEC, 0666);
        if (number < 0)
            throw from_opening(errno, path, flags);
    }
    descriptor(const descriptor &) = delete;
    descriptor & operator=(const descriptor &) = delete;
    ~descriptor()
    {
        if (number >= 0)
            ::close(number);
    }

    void write_all(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            pass_gate(file_step::write, name);
            const ssize_t written = ::write(number, bytes.data(), std::min(bytes.size(), piece_size));
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                throw from_system(errno, name);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    std::string read_all() const
    {
        std::string bytes;
        std::string chunk(chunk_size, '\0');
        for (;;) {
            const ssize_t got = ::read(number, chunk.data(), chunk.size());
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0)
                throw from_system(errno, name);
            if (got == 0)
                return bytes;
            bytes.append(chunk, 0, static_cast<std::size_t>(got));
        }
    }
    void flush() const
    {
        pass_gate(file_step::flush, name);
        // Special files (a terminal, /dev/full) can't be flushed to a disk and need not be.
        if (::fsync(number) != 0 && errno != EINVAL && errno != EROFS)
            throw from_system(errno, name);
    }
    // As long as it is open, remove_abandoned_parts leaves the file alone.
    void keep_from_others() const { ::flock(number, LOCK_EX | LOCK_NB); }
    void give_mode(mode_t mode) const { ::fchmod(number, mode); }
    // Some file systems tell only now that a disk is full.
    void close()
    {
        if (::close(std::exchange(number, -1)) != 0 && errno != EINTR)
            throw from_system(errno, name);
    }

private:
    int number;
    std::string name;
};

enum class durability { flushed, left_to_the_system };

// The rights of the file that is to be replaced, if there is one. Only the folder's rights count for a
// rename, so a file that its owner has protected is refused here.
std::optional<mode_t> rights_of(const std::string & path)
{
    struct stat found {};
    if (::stat(path.c_str(), &found) != 0)
        return std::nullopt;
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        throw from_system(errno, path);
    return found.st_mode & 07777;
}

constexpr std::size_t longest_name = 255;  // of a file, in bytes, on the usual file systems
constexpr int hexadecimal = 16;
constexpr std::chrono::minutes youngest_abandoned{1};

std::string in_hexadecimal(unsigned long number)
{
    char digits[2 * sizeof number];
    const auto written = std::to_chars(digits, digits + sizeof digits, number, hexadecimal);
    return {digits, written.ptr};
}

// A name beside `path` that no other step of this program has, nor one of another that runs at the same time:
// two that write the same file never write into each other's.
std::string path_beside(const std::string & path)
{
    static std::atomic<unsigned long> count{0};
    const std::string own = "." + in_hexadecimal(static_cast<unsigned long>(::getpid())) + "-" +
                            in_hexadecimal(count++) + std::string(part_ending);
    const std::size_t name = path.size() - name_of(path).size();
    return path.substr(0, name) + path.substr(name, longest_name - own.size()) + own;
}

// A name that path_beside gives: "a.jpg.1f3-0.part".
bool is_part_of_ours(std::string_view name)
{
    constexpr std::string_view digits = "0123456789abcdef";
    if (!name.ends_with(part_ending))
        return false;
    name.remove_suffix(part_ending.size());
    const std::size_t dash = name.find_last_not_of(digits);
    if (dash == std::string_view::npos || name[dash] != '-' || dash + 1 == name.size())
        return false;
    const std::size_t dot = name.substr(0, dash).find_last_not_of(digits);
    return dot != std::string_view::npos && dot > 0 && name[dot] == '.' && dot + 1 < dash;
}

// Old, so that nobody has only just made it, and open in no program.
bool is_abandoned(const std::filesystem::directory_entry & entry)
{
    std::error_code failed;
    const auto age = std::filesystem::file_time_type::clock::now() - entry.last_write_time(failed);
    if (failed || age < youngest_abandoned)
        return false;
    const int number = ::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    const bool is_free = number >= 0 && ::flock(number, LOCK_EX | LOCK_NB) == 0;
    if (number >= 0)
        ::close(number);
    return is_free;
}

void write_whole(const std::string & path, std::string_view bytes, durability wanted,
                 std::optional<mode_t> rights)
{
    descriptor file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
    file.keep_from_others();
    if (rights)
        file.give_mode(*rights);
    file.write_all(bytes);
    if (wanted == durability::flushed)
        file.flush();
    file.close();
}

// Never destroyed: a signal may come while the program is at its end.
struct unfinished_list {
    std::mutex guard;
    std::set<std::string> paths;
};

unfinished_list & unfinished()
{
    static unfinished_list & listed = *new unfinished_list;
    return listed;
}

// A file that is under construction while this lives.
class unfinished_file {
public:
    explicit unfinished_file(const std::string & path) : name(path)
    {
        const std::lock_guard held(unfinished().guard);
        unfinished().paths.insert(name);
    }
    unfinished_file(const unfinished_file &) = delete;
    unfinished_file & operator=(const unfinished_file &) = delete;
    ~unfinished_file()
    {
        const std::lock_guard held(unfinished().guard);
        unfinished().paths.erase(name);
    }

private:
    const std::string & name;
};

void rename_over(const std::string & from, const std::string & to)
{
    pass_gate(file_step::rename, to);
    if (std::rename(from.c_str(), to.c_str()) != 0)
        throw from_system(errno, to);
}

void swap_in(const std::string & path, std::string_view bytes, durability wanted)
{
    const std::optional<mode_t> rights = rights_of(path);
    const std::string beside = path_beside(path);
    const unfinished_file under_construction(beside);
    try {
        write_whole(beside, bytes, wanted, rights);
        rename_over(beside, path);
    } catch (platform_error & error) {
        if (asked_gate(file_step::remove, beside) == 0)
            std::remove(beside.c_str());
        error.path = path;
        throw;
    }
}

// True for a text whose last line has no end: what is appended would become a part of it.
bool ends_inside_a_line(const std::string & path)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file || file.tellg() <= 0)
        return false;
    file.seekg(-1, std::ios::end);
    return file.get() != '\n';
}

void flush_folder_of(const std::string & path)
{
    const std::string folder = folder_of(path);
    if (asked_gate(file_step::flush, folder) != 0)
        return;
    const int number = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number < 0)
        return;  // the rename stands; only its place on the disk is the system's affair
    ::fsync(number);
    ::close(number);
}

#ifdef __linux__
int flushed_disk_of(int folder)
{
    return ::syncfs(folder);
}
#else
// Every disk: no system has more to offer for a whole folder.
int flushed_disk_of(int)
{
    ::sync();
    return 0;
}
#endif

}  // namespace

line_source::line_source(const std::string & path) : bytes(read_file(path)), source_path(path) {}

line_source line_source::of_text(std::string text)
{
    line_source source;
    source.bytes = std::move(text);
    return source;
}

std::string line_source::read_line()
{
    if (at_end())
        throw platform_error(error_number::past_end_of_file, "The file has no more lines.", source_path);
    const std::size_t feed = bytes.find('\n', position);
    const std::size_t end = feed == std::string::npos ? bytes.size() : feed;
    std::string line = bytes.substr(position, end - position);
    position = feed == std::string::npos ? end : end + 1;
    if (feed != std::string::npos && line.ends_with('\r'))
        line.pop_back();
    return line;
}

line_writer::line_writer(const std::string & path, mode opened) : target(path)
{
    const bool continues = opened == mode::append && ends_inside_a_line(path);
    errno = 0;
    file.open(path, std::ios::binary | (opened == mode::append ? std::ios::app : std::ios::trunc));
    if (!file)
        throw from_opening(errno, path, O_CREAT);
    if (continues)
        write_line({});
}

void line_writer::write_line(std::string_view line)
{
    errno = 0;
    file << line << "\r\n";
    if (!file)
        throw from_system(errno != 0 ? errno : ENOSPC, target);
}

void line_writer::close()
{
    errno = 0;
    file.close();
    if (!file)
        throw from_system(errno != 0 ? errno : ENOSPC, target);
}

std::string read_file(const std::string & path)
{
    const descriptor file(path, O_RDONLY);
    return file.read_all();
}

void remove_abandoned_parts(const std::string & folder)
{
    std::error_code failed;
    for (const auto & entry : std::filesystem::directory_iterator(folder, failed))
        if (is_part_of_ours(entry.path().filename().string()) && is_abandoned(entry))
            std::remove(entry.path().c_str());
}

void remove_unfinished_files()
{
    unfinished().guard.lock();
    for (const std::string & path : unfinished().paths)
        if (asked_gate(file_step::remove, path) == 0)
            std::remove(path.c_str());
}

void flush_below(const std::string & folder)
{
    pass_gate(file_step::flush_all, folder);
    const int number = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number < 0)
        throw from_system(errno, folder);
    const int failed = flushed_disk_of(number) == 0 ? 0 : errno;
    ::close(number);
    if (failed != 0)
        throw from_system(failed, folder);
}

void replace_file(const std::string & path, std::string_view bytes)
{
    swap_in(path, bytes, durability::flushed);
    flush_folder_of(path);
}

void move_file(const std::string & from, const std::string & to)
{
    rename_over(from, to);
    flush_folder_of(to);
}

void write_file(const std::string & path, std::string_view bytes)
{
    swap_in(path, bytes, durability::left_to_the_system);
}

std::vector<std::string> lines_of_text(std::string text)
{
    std::vector<std::string> lines;
    for (line_source source = line_source::of_text(std::move(text)); !source.at_end();)
        lines.push_back(source.read_line());
    return lines;
}

std::vector<std::string> lines_of_file(const std::string & path)
{
    return lines_of_text(read_file(path));
}

std::string text_of(const std::vector<std::string> & lines)
{
    std::string text;
    for (const std::string & line : lines)
        text += line + "\r\n";
    return text;
}

std::vector<std::string> split(std::string_view text, char sign, std::size_t limit)
{
    std::vector<std::string> fields;
    while (fields.size() + 1 < limit) {
        const std::size_t at = text.find(sign);
        if (at == std::string_view::npos)
            break;
        fields.emplace_back(text.substr(0, at));
        text.remove_prefix(at + 1);
    }
    fields.emplace_back(text);
    return fields;
}

const std::string & field_at(const std::vector<std::string> & fields, std::size_t index)
{
    if (index >= fields.size())
        throw platform_error(error_number::subscript, "A line has too few fields.");
    return fields[index];
}
