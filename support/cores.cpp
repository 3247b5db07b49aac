#include "support/cores.h"

#include <algorithm>
#include <sched.h>
#include <thread>

int usable_cores()
{
    cpu_set_t allowed;
    if (::sched_getaffinity(0, sizeof(allowed), &allowed) == 0)
        return std::max(CPU_COUNT(&allowed), 1);
    return std::max(static_cast<int>(std::thread::hardware_concurrency()), 1);
}
