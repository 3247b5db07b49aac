// Loaded in front of the system's library: disks that take their time. What two programs do to one folder
// then lies side by side in time, which on a quick disk happens once in a thousand times; and who waits for a
// disk is seen to wait.

#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>

namespace {

template <typename Function>
Function really(const char * name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

void wait_as_told(const char * variable)
{
    if (const char * const pause = std::getenv(variable))
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(pause)));
}

// The folder of the photos, and what lies in it, on a share at the other end of the world.
void wait_for_photos(const char * path)
{
    static const char * const folder = std::getenv("TESSALOOM_SLOW_FOLDER");
    if (folder != nullptr && path != nullptr && std::strncmp(path, folder, std::strlen(folder)) == 0)
        wait_as_told("TESSALOOM_SLOW_PHOTOS");
}

using opener = int (*)(const char * path, int flags, mode_t mode);
using stream_opener = FILE * (*)(const char * path, const char * way);
using teller = int (*)(const char * path, struct stat * told);

int opened(opener open_really, const char * path, int flags, std::va_list more)
{
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    wait_for_photos(path);
    return open_really(path, flags, mode);
}

FILE * opened(stream_opener open_really, const char * path, const char * way)
{
    wait_for_photos(path);
    return open_really(path, way);
}

int asked(teller tell_really, const char * path, struct stat * told)
{
    wait_for_photos(path);
    return tell_really(path, told);
}

int flushed(int (*flush_really)(int), int descriptor)
{
    wait_as_told("TESSALOOM_SLOW_DISK");
    return flush_really(descriptor);
}

}  // namespace

extern "C" {

int fsync(int descriptor)
{
    static const auto really_so = really<int (*)(int)>("fsync");
    return flushed(really_so, descriptor);
}

int syncfs(int descriptor) noexcept
{
    static const auto really_so = really<int (*)(int)>("syncfs");
    return flushed(really_so, descriptor);
}

int open(const char * path, int flags, ...)
{
    static const auto really_so = really<opener>("open");
    std::va_list more;
    va_start(more, flags);
    const int descriptor = opened(really_so, path, flags, more);
    va_end(more);
    return descriptor;
}

int open64(const char * path, int flags, ...)
{
    static const auto really_so = really<opener>("open64");
    std::va_list more;
    va_start(more, flags);
    const int descriptor = opened(really_so, path, flags, more);
    va_end(more);
    return descriptor;
}

FILE * fopen(const char * path, const char * way)
{
    static const auto really_so = really<stream_opener>("fopen");
    return opened(really_so, path, way);
}

FILE * fopen64(const char * path, const char * way)
{
    static const auto really_so = really<stream_opener>("fopen64");
    return opened(really_so, path, way);
}

int stat(const char * path, struct stat * told) noexcept
{
    static const auto really_so = really<teller>("stat");
    return asked(really_so, path, told);
}

int lstat(const char * path, struct stat * told) noexcept
{
    static const auto really_so = really<teller>("lstat");
    return asked(really_so, path, told);
}

int faccessat(int folder, const char * path, int wanted, int flags) noexcept
{
    static const auto ask_really = really<int (*)(int, const char *, int, int)>("faccessat");
    wait_for_photos(path);
    return ask_really(folder, path, wanted, flags);
}

DIR * opendir(const char * path)
{
    static const auto open_really = really<DIR * (*)(const char *)>("opendir");
    wait_for_photos(path);
    return open_really(path);
}

}  // extern "C"
