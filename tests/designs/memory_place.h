#pragma once

#include <cstdlib>
#include <string>
#include <unistd.h>

/// While it lives temporary folders are made in memory where there is such a place: flushing costs nothing
/// there.
class memory_place {
public:
    memory_place()
    {
        const char * const place = std::getenv("TMPDIR");
        before = place == nullptr ? "" : place;
        if (::access("/dev/shm", W_OK) == 0)
            ::setenv("TMPDIR", "/dev/shm", 1);
    }
    memory_place(const memory_place &) = delete;
    memory_place & operator=(const memory_place &) = delete;
    ~memory_place()
    {
        if (before.empty())
            ::unsetenv("TMPDIR");
        else
            ::setenv("TMPDIR", before.c_str(), 1);
    }

private:
    std::string before;
};
