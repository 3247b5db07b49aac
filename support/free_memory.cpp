#include "support/free_memory.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr std::uint64_t no_limit = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t kibibyte = 1024;

std::uint64_t left_of(std::uint64_t limit, std::uint64_t used)
{
    return limit > used ? limit - used : 0;
}

// The number of the machine's free kibibytes stands behind its name.
std::uint64_t free_on_machine()
{
    std::ifstream told("/proc/meminfo");
    for (std::string name; told >> name;)
        if (std::uint64_t number = 0; name == "MemAvailable:" && told >> number)
            return number * kibibyte;
    return no_limit;
}

std::uint64_t free_of_own_limit()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return no_limit;
    std::uint64_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return left_of(limit.rlim_cur, pages * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE)));
}

std::optional<std::uint64_t> number_in(const std::string & path)
{
    std::uint64_t number = 0;
    std::ifstream told(path);
    return told >> number ? std::optional(number) : std::nullopt;
}

// A group that has no limit says so in a word, or in a number that no machine reaches.
std::uint64_t free_in_group(const std::string & limit_path, const std::string & used_path)
{
    const std::optional<std::uint64_t> limit = number_in(limit_path), used = number_in(used_path);
    return limit && used ? left_of(*limit, *used) : no_limit;
}

}  // namespace

std::uint64_t free_memory()
{
    const std::string groups = "/sys/fs/cgroup/";
    return std::min(
        {free_on_machine(), free_of_own_limit(),
         free_in_group(groups + "memory.max", groups + "memory.current"),
         free_in_group(groups + "memory/memory.limit_in_bytes", groups + "memory/memory.usage_in_bytes")});
}
