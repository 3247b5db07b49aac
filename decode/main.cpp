#include "decode/decoded_file.h"
#include "decode/sandbox.h"
#include "intake/decoder_answer.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <sys/prctl.h>
#include <unistd.h>

// Reads a picture file from standard input and writes an upright JPEG of it to standard output, behind two
// letters: how it went, and what kept the process in its place. It is started for one file each; whatever
// that file makes a decoder do, nothing but its own answer comes of it.

namespace {

constexpr std::size_t largest_file = std::size_t{1} << 30U;

std::string all_input()
{
    std::string bytes;
    static std::array<char, 1 << 16> chunk;
    for (;;) {
        const ssize_t got = ::read(STDIN_FILENO, chunk.data(), chunk.size());
        if (got <= 0)
            return bytes;
        if (bytes.size() + static_cast<std::size_t>(got) > largest_file)
            throw decode_fault::too_large;
        bytes.append(chunk.data(), static_cast<std::size_t>(got));
    }
}

bool write_all(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// But for its two ends. What libraries have to say is of no use, and would be output to a file.
void forget_what_was_open()
{
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere < 0 || ::dup2(nowhere, STDERR_FILENO) < 0)
        ::close(STDERR_FILENO);
    ::close_range(STDERR_FILENO + 1, ~0U, 0);
}

std::string answer_to(picture_kind kind)
{
    try {
        const std::string file = all_input();
        return picture_follows + decoded_file(bytes_of_text(file), kind);
    } catch (decode_fault fault) {
        return {static_cast<char>(fault)};
    } catch (const std::bad_alloc &) {
        return {static_cast<char>(decode_fault::no_memory)};
    }
}

}  // namespace

int main(int count, char ** words)
{
    const std::optional<picture_kind> kind = kind_of_word(count == 2 ? words[1] : "");
    if (!kind) {
        constexpr const char * told = "tessaloom-decode is started by the other programs, not by hand.\n";
        std::fputs(told, stderr);
        return 2;
    }
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    forget_what_was_open();
    limit_process({});
    const char kept_by = static_cast<char>(enter_sandbox());
    const bool is_answered = write_all(kept_by + answer_to(*kind));
    std::_Exit(is_answered ? 0 : 1);  // what else happens at an end needs more than it may do by now
}
