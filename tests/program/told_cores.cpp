// Loaded in front of the system's library: a machine of as many cores as TESSALOOM_TOLD_CORES says, whatever
// it has. More workers than cores are then seen to leave the window room.

#include <cstddef>
#include <cstdlib>
#include <sched.h>

extern "C" int sched_getaffinity(pid_t, std::size_t size, cpu_set_t * told) noexcept
{
    const char * const cores = std::getenv("TESSALOOM_TOLD_CORES");
    CPU_ZERO_S(size, told);
    for (int core = 0; core < std::atoi(cores != nullptr ? cores : "1"); ++core)
        CPU_SET_S(static_cast<std::size_t>(core), size, told);
    return 0;
}
