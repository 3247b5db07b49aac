#include "decode/sandbox.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <linux/landlock.h>
#include <memory>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

// The address sanitizer keeps its books in terabytes of addresses.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TAKES_ADDRESSES
#endif
#endif

namespace {

#ifdef TAKES_ADDRESSES
constexpr bool memory_can_be_limited = false;
#else
constexpr bool memory_can_be_limited = true;
#endif

void limit(__rlimit_resource what, std::uint64_t most)
{
    const rlimit wanted{.rlim_cur = most, .rlim_max = most};
    ::setrlimit(what, &wanted);
}

// Memory, threads, time and what is open already. Whatever isn't here fails as if it were forbidden.
constexpr std::array answered{SCMP_SYS(read),
                              SCMP_SYS(pread64),
                              SCMP_SYS(readv),
                              SCMP_SYS(write),
                              SCMP_SYS(writev),
                              SCMP_SYS(lseek),
                              SCMP_SYS(close),
                              SCMP_SYS(fstat),
                              SCMP_SYS(newfstatat),
                              SCMP_SYS(munmap),
                              SCMP_SYS(mremap),
                              SCMP_SYS(madvise),
                              SCMP_SYS(brk),
                              SCMP_SYS(futex),
                              SCMP_SYS(poll),
                              SCMP_SYS(set_robust_list),
                              SCMP_SYS(rseq),
                              SCMP_SYS(sched_yield),
                              SCMP_SYS(sched_getaffinity),
                              SCMP_SYS(sched_setaffinity),
                              SCMP_SYS(sched_getparam),
                              SCMP_SYS(sched_getscheduler),
                              SCMP_SYS(getcpu),
                              SCMP_SYS(gettid),
                              SCMP_SYS(getpid),
                              SCMP_SYS(tgkill),
                              SCMP_SYS(rt_sigaction),
                              SCMP_SYS(rt_sigprocmask),
                              SCMP_SYS(rt_sigreturn),
                              SCMP_SYS(sigaltstack),
                              SCMP_SYS(getrandom),
                              SCMP_SYS(clock_gettime),
                              SCMP_SYS(clock_getres),
                              SCMP_SYS(clock_nanosleep),
                              SCMP_SYS(nanosleep),
                              SCMP_SYS(gettimeofday),
                              SCMP_SYS(sysinfo),
                              SCMP_SYS(getrusage),
                              SCMP_SYS(restart_syscall),
                              SCMP_SYS(exit),
                              SCMP_SYS(exit_group)};

struct filter_closer {
    void operator()(void * filter) const { seccomp_release(filter); }
};

bool allows(scmp_filter_ctx filter, int call)
{
    return seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0;
}

bool allows_where(scmp_filter_ctx filter, int call, const scmp_arg_cmp & so)
{
    return seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, call, 1, &so) == 0;
}

// Threads, but no processes; the newer call hides which of the two it is to begin.
bool allows_threads(scmp_filter_ctx filter)
{
    constexpr std::uint64_t thread = 0x00010000;  // CLONE_THREAD
    return allows_where(filter, SCMP_SYS(clone),
                        {.arg = 0, .op = SCMP_CMP_MASKED_EQ, .datum_a = thread, .datum_b = thread}) &&
           seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
}

// No memory becomes a program.
bool allows_protection_of_data(scmp_filter_ctx filter)
{
    constexpr std::uint64_t executable = 4;  // PROT_EXEC
    const auto is_data = [](unsigned argument) {
        return scmp_arg_cmp{.arg = argument, .op = SCMP_CMP_MASKED_EQ, .datum_a = executable, .datum_b = 0};
    };
    return allows_where(filter, SCMP_SYS(mprotect), is_data(2)) &&
           allows_where(filter, SCMP_SYS(mmap), is_data(2));
}

bool close_calls()
{
    const std::unique_ptr<void, filter_closer> filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    if (!filter || !allows_threads(filter.get()) || !allows_protection_of_data(filter.get()))
        return false;
    for (const int call : answered)
        if (!allows(filter.get(), call))
            return false;
    return seccomp_load(filter.get()) == 0;
}

// All rights over files that this kernel can take away; a right it doesn't know must not be named.
std::uint64_t file_rights(long version)
{
    constexpr long with_refer = 2, with_truncate = 3, with_device_calls = 5;
    std::uint64_t rights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1U) - 1;
    if (version >= with_refer)
        rights |= std::uint64_t{1} << 13U;
    if (version >= with_truncate)
        rights |= std::uint64_t{1} << 14U;
    if (version >= with_device_calls)
        rights |= std::uint64_t{1} << 15U;
    return rights;
}

bool close_files()
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return false;
    const landlock_ruleset_attr rules{.handled_access_fs = file_rights(version)};
    const auto closed = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0));
    if (closed < 0)
        return false;
    const bool done = ::syscall(SYS_landlock_restrict_self, closed, 0) == 0;
    ::close(closed);
    return done;
}

}  // namespace

void limit_process(const process_limits & limits)
{
    std::signal(SIGXFSZ, SIG_IGN);  // what is written in spite of it just fails
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    if (memory_can_be_limited)
        limit(RLIMIT_AS, limits.memory);
    limit(RLIMIT_CPU, limits.seconds);
}

sandbox enter_sandbox()
{
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return sandbox::none;
    const bool files = close_files(), calls = close_calls();
    if (files && calls)
        return sandbox::all;
    if (calls)
        return sandbox::calls;
    return files ? sandbox::files : sandbox::none;
}
