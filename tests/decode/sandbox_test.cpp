#include "decode/sandbox.h"

#include "support/files/text_file.h"
#include "tests/temporary_folder.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int refused = 0, let_through = 1, without_sandbox = 2;

// Does something in a process that has shut itself in, and tells how that ended.
int tried_inside(const std::function<bool()> & deed)
{
    const pid_t id = ::fork();
    if (id == 0) {
        limit_process({});
        const sandbox kept = enter_sandbox();
        ::_exit(kept == sandbox::none ? without_sandbox : deed() ? let_through : refused);
    }
    int status = 0;
    ::waitpid(id, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool is_in_file(const char * path, std::string_view word)
{
    std::ifstream file(path);
    return std::string(std::istreambuf_iterator<char>(file), {}).find(word) != std::string::npos;
}

// Where the kernel tells that it can shut a process in, it has to; elsewhere the program knows that it isn't.
int refused_if_kernel_can()
{
    const bool can =
        is_in_file("/proc/self/status", "Seccomp:") || is_in_file("/sys/kernel/security/lsm", "landlock");
    return can ? refused : without_sandbox;
}

struct in_sandbox : testing::Test {
    const int shut_in = refused_if_kernel_can();
};

}  // namespace

TEST_F(in_sandbox, lets_no_file_be_opened)
{
    const temporary_folder folder;
    const std::string there = folder.write("there", "text"), missing = folder.at("missing");
    EXPECT_EQ(tried_inside([&] { return ::open(there.c_str(), O_WRONLY) >= 0; }), shut_in);
    EXPECT_EQ(tried_inside([&] { return ::open(there.c_str(), O_RDONLY) >= 0; }), shut_in);
    EXPECT_EQ(tried_inside([&] { return ::open(missing.c_str(), O_WRONLY | O_CREAT, 0600) >= 0; }), shut_in);
    EXPECT_EQ(tried_inside([&] { return ::openat(AT_FDCWD, "/dev/null", O_RDWR) >= 0; }), shut_in);
    EXPECT_EQ(read_file(there), "text");
}

TEST_F(in_sandbox, lets_no_file_be_taken_away)
{
    const temporary_folder folder;
    const std::string there = folder.write("there", "text"), other = folder.at("other");
    EXPECT_EQ(tried_inside([&] { return ::unlink(there.c_str()) == 0; }), shut_in);
    EXPECT_EQ(tried_inside([&] { return ::rename(there.c_str(), other.c_str()) == 0; }), shut_in);
    EXPECT_EQ(tried_inside([&] { return ::truncate(there.c_str(), 0) == 0; }), shut_in);
    EXPECT_EQ(tried_inside([&] { return ::mkdir(other.c_str(), 0700) == 0; }), shut_in);
    EXPECT_EQ(read_file(there), "text");
}

TEST(sandbox, lets_nothing_be_written_to_a_file_that_is_open)
{
    const temporary_folder folder;
    const std::string there = folder.write("there", "text");
    const int number = ::open(there.c_str(), O_WRONLY | O_CLOEXEC);
    EXPECT_EQ(tried_inside([&] { return ::write(number, "more of it", 10) > 0; }), refused);
    ::close(number);
    EXPECT_EQ(read_file(there), "text");
}

TEST_F(in_sandbox, has_no_network)
{
    for (const int family : {AF_INET, AF_INET6, AF_UNIX, AF_NETLINK})
        EXPECT_EQ(tried_inside([&] {
                      return ::socket(family, SOCK_STREAM, 0) >= 0 || ::socket(family, SOCK_DGRAM, 0) >= 0;
                  }),
                  shut_in)
            << family;
}

TEST_F(in_sandbox, begins_no_other_process_and_stops_none)
{
    EXPECT_EQ(tried_inside([] { return ::fork() >= 0; }), shut_in);
    EXPECT_EQ(tried_inside([] {
                  char * const words[] = {nullptr};
                  ::execv("/bin/true", words);
                  return false;
              }),
              shut_in);
    EXPECT_EQ(tried_inside([] { return ::kill(::getppid(), 0) == 0; }), shut_in);
}

TEST(sandbox, still_has_memory_and_threads)
{
    EXPECT_NE(tried_inside([] {
                  std::vector<char> text(50'000'000, 'x');
                  std::thread other([&text] { text.resize(100'000'000); });
                  other.join();
                  return text.size() == 100'000'000;
              }),
              refused);
}

// The address sanitizer takes terabytes of addresses, so that there is no limit.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WITHOUT_LIMIT
#endif
#endif
#ifndef WITHOUT_LIMIT
TEST(sandbox, gives_only_so_much_memory)
{
    const pid_t id = ::fork();
    if (id == 0) {
        limit_process({.memory = std::uint64_t{1} << 30U});
        try {
            const std::vector<char> text(std::size_t{2} << 30U, 'x');
            ::_exit(text.back() == 'x' ? let_through : refused);
        } catch (const std::bad_alloc &) {
            ::_exit(refused);
        }
    }
    int status = 0;
    ::waitpid(id, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == refused);
}
#endif
