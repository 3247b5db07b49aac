// Loaded in front of the system's library: a disk that takes its time until it has what is written, as under
// load or on a card. What two programs do to one folder then lies side by side in time, which on a quick disk
// happens once in a thousand times.

#include <chrono>
#include <cstdlib>
#include <dlfcn.h>
#include <thread>

namespace {

using flush = int (*)(int);

int flushed_late(const char * name, int descriptor)
{
    static const char * const pause = std::getenv("TESSALOOM_SLOW_DISK");
    if (pause != nullptr)
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(pause)));
    return reinterpret_cast<flush>(::dlsym(RTLD_NEXT, name))(descriptor);
}

}  // namespace

extern "C" int fsync(int descriptor)
{
    return flushed_late("fsync", descriptor);
}

extern "C" int syncfs(int descriptor)
{
    return flushed_late("syncfs", descriptor);
}
