#include "intake/decoder_process.h"

#include "support/files/paths.h"
#include "support/platform_error.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

using clock_type = std::chrono::steady_clock;

class open_end {
public:
    explicit open_end(int opened) : number(opened) {}
    open_end(const open_end &) = delete;
    open_end & operator=(const open_end &) = delete;
    ~open_end() { close(); }
    int get() const { return number; }
    void close()
    {
        if (number >= 0)
            ::close(std::exchange(number, -1));
    }

private:
    int number;
};

class spawn_steps {
public:
    spawn_steps() { ::posix_spawn_file_actions_init(&steps); }
    spawn_steps(const spawn_steps &) = delete;
    spawn_steps & operator=(const spawn_steps &) = delete;
    ~spawn_steps() { ::posix_spawn_file_actions_destroy(&steps); }
    void give(int number, int as) { ::posix_spawn_file_actions_adddup2(&steps, number, as); }
    const posix_spawn_file_actions_t * get() const { return &steps; }

private:
    posix_spawn_file_actions_t steps{};
};

// A process that is ended and waited for, whatever happens.
class child {
public:
    explicit child(pid_t started) : id(started) {}
    child(const child &) = delete;
    child & operator=(const child &) = delete;
    ~child()
    {
        if (id > 0) {
            ::kill(id, SIGKILL);
            while (::waitpid(id, nullptr, 0) < 0 && errno == EINTR) {}
        }
    }
    // Its status as the system tells it, nothing while it runs.
    std::optional<int> status()
    {
        int told = 0;
        if (::waitpid(id, &told, WNOHANG) != id)
            return std::nullopt;
        id = 0;
        return told;
    }

private:
    pid_t id;
};

open_end opened(const std::string & path)
{
    const int number = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (number < 0)
        throw from_system(errno, path);
    return open_end(number);
}

// Its surroundings are empty: what a user has set up for libraries has no say there.
pid_t started(const std::string & program, picture_kind kind, int input, int output)
{
    spawn_steps steps;
    steps.give(input, STDIN_FILENO);
    steps.give(output, STDOUT_FILENO);
    std::string name = name_of(program), word = word_of(kind);
    std::array<char *, 3> words{name.data(), word.data(), nullptr};
    std::array<char *, 1> surroundings{nullptr};
    pid_t id = 0;
    const int fault =
        ::posix_spawn(&id, program.c_str(), steps.get(), nullptr, words.data(), surroundings.data());
    return fault == 0 ? id : 0;
}

enum class reading { over, too_slow, stopped, too_much };

struct read_answer {
    std::string bytes;
    reading ended = reading::over;
};

// What may end it from outside.
struct patience {
    const std::atomic<bool> & stop;
    clock_type::time_point latest;
};

reading end_of(const patience & most)
{
    if (most.stop)
        return reading::stopped;
    return clock_type::now() > most.latest ? reading::too_slow : reading::over;
}

read_answer all_of(int from, const decoder & used, const patience & most)
{
    constexpr int glance = 50;  // milliseconds between looks at what would end it
    read_answer answer;
    std::string chunk(1 << 16, '\0');
    for (;;) {
        answer.ended = end_of(most);
        if (answer.ended != reading::over)
            return answer;
        pollfd waiting{.fd = from, .events = POLLIN, .revents = 0};
        if (::poll(&waiting, 1, glance) <= 0)
            continue;
        const ssize_t got = ::read(from, chunk.data(), chunk.size());
        if (got <= 0)
            return answer;
        answer.bytes.append(chunk, 0, static_cast<std::size_t>(got));
        if (answer.bytes.size() > used.largest_answer)
            return {.bytes = {}, .ended = reading::too_much};
    }
}

decoder_answer failed(decode_fault fault)
{
    return {.fault = fault};
}

decoder_answer made_of(const std::string & bytes, int status)
{
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU)
        return failed(decode_fault::too_slow);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return failed(decode_fault::broken_down);
    return answer_of(bytes);
}

decoder_answer ended(reading how)
{
    switch (how) {
        case reading::too_slow:
            return failed(decode_fault::too_slow);
        case reading::stopped:
            return failed(decode_fault::stopped);
        default:
            return failed(decode_fault::too_large);
    }
}

// One that a file has taken over may say no more and stay.
decoder_answer answer_at_end(child & running, const read_answer & read, const patience & most)
{
    constexpr std::chrono::milliseconds glance{1};
    reading how = read.ended;
    while (how == reading::over) {
        if (const std::optional<int> status = running.status())
            return made_of(read.bytes, *status);
        std::this_thread::sleep_for(glance);
        how = end_of(most);
    }
    return ended(how);
}

}  // namespace

decoder decoder_in(const std::string & program_folder)
{
    return {.program = joined(program_folder, "tessaloom-decode")};
}

decoder_answer answer_for(const decoder & used, const std::string & path, picture_kind kind,
                          const std::atomic<bool> & stop)
{
    const open_end input = opened(path);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw from_system(errno, path);
    const open_end from(ends[0]);
    open_end to(ends[1]);
    const pid_t id = started(used.program, kind, input.get(), to.get());
    if (id == 0)
        return failed(decode_fault::no_decoder);
    child running(id);
    to.close();
    const patience most{.stop = stop, .latest = clock_type::now() + used.patience};
    return answer_at_end(running, all_of(from.get(), used, most), most);
}
