#include "support/files/folder_lock.h"

#include "support/files/paths.h"
#include "support/platform_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

bool is_closed_place(int system_number)
{
    return system_number == EROFS || system_number == EACCES || system_number == EPERM;
}

bool knows_no_locks(int system_number)
{
    return system_number == ENOLCK || system_number == EOPNOTSUPP || system_number == ENOSYS ||
           system_number == EINVAL;
}

int refusal_of_lock(int descriptor)
{
    int result = 0;
    do
        result = ::flock(descriptor, LOCK_EX | LOCK_NB);
    while (result != 0 && errno == EINTR);
    return result == 0 ? 0 : errno;
}

}  // namespace

folder_lock & folder_lock::operator=(folder_lock && other) noexcept
{
    std::swap(descriptor, other.descriptor);
    return *this;
}

folder_lock::~folder_lock()
{
    if (descriptor != none)
        ::close(descriptor);
}

std::optional<folder_lock> folder_lock::taken(const std::string & folder, std::string_view name)
{
    const std::string path = joined(folder, name);
    folder_lock held(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666));
    if (held.descriptor == none) {
        if (is_closed_place(errno))
            return folder_lock();
        throw from_system(errno, path);
    }
    const int refused = refusal_of_lock(held.descriptor);
    if (refused == EWOULDBLOCK)
        return std::nullopt;
    if (refused != 0 && !knows_no_locks(refused))
        throw from_system(refused, path);
    return held;
}
