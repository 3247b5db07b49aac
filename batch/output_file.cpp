#include "batch/output_file.h"

#include "batch/arguments.h"
#include "batch/output_kind.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int most_links = 40;  // as many as the system follows

// The end of the chain of links, which need not be there yet. Nothing of it is shortened in words: "x/.." may
// lead elsewhere than here when x is a link.
fs::path end_of_links(const std::string & out)
{
    fs::path path = out;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path)); ++links) {
        if (links == most_links)
            throw from_system(ELOOP, out);
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

const char * name_of_kind(fs::file_type kind)
{
    switch (kind) {
        case fs::file_type::directory:
            return "a folder";
        case fs::file_type::fifo:
            return "a pipe";
        case fs::file_type::socket:
            return "a socket";
        default:
            return "a device";
    }
}

void check_place(const std::string & out, const fs::path & target)
{
    const fs::path parent = target.parent_path();
    const std::string folder = parent.empty() ? "." : parent.string();
    if (!folder_exists(folder))
        throw platform_error(error_number::path_not_found, "The folder of the picture does not exist.", out);
    if (!folder_writable(folder))
        throw platform_error(error_number::permission_denied, "The folder of the picture can't be written.",
                             out);
    if (fs::exists(target) && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        throw platform_error(error_number::permission_denied, "The picture that is there is write-protected.",
                             out);
}

// Standard output as it was before the picture. What broke off is taken back where that can be done: from the
// end of a file.
class untouched_output {
public:
    untouched_output()
    {
        struct stat found {};
        const bool is_file = ::fstat(STDOUT_FILENO, &found) == 0 && S_ISREG(found.st_mode);
        const bool at_end = (::fcntl(STDOUT_FILENO, F_GETFL) & O_APPEND) != 0 ||
                            ::lseek(STDOUT_FILENO, 0, SEEK_CUR) == found.st_size;
        if (is_file && at_end)
            size = found.st_size;
    }
    void restore() const
    {
        if (size && ::ftruncate(STDOUT_FILENO, *size) == 0)
            ::lseek(STDOUT_FILENO, *size, SEEK_SET);
    }

private:
    std::optional<off_t> size;
};

void write_to_standard_output(std::string_view bytes)
{
    const untouched_output before;
    while (!bytes.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0) {
            const int fault = errno;
            before.restore();
            throw from_system(fault, "standard output");
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

std::string checked_output(const std::string & out)
{
    kind_of_output(out);
    if (out == standard_stream)
        return {};
    return with_platform_errors([&] {
        const fs::path target = end_of_links(out);
        const fs::file_status found = fs::status(target);
        if (fs::exists(found) && !fs::is_regular_file(found))
            throw bad_arguments{"\"" + out + "\" is " + name_of_kind(found.type()) +
                                "; a collage goes to a file"};
        check_place(out, target);
        return target.string();
    });
}

void write_output(const std::string & out, std::string_view picture)
{
    const std::string target = checked_output(out);
    if (target.empty())
        write_to_standard_output(picture);
    else
        replace_file(target, picture);
}
