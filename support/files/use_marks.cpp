#include "support/files/use_marks.h"

#include "support/files/paths.h"
#include "support/platform_error.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

// A number is a place in the file, far behind its end.
struct flock mark_at(std::uint64_t number, int kind)
{
    constexpr std::uint64_t places = std::uint64_t{1} << 62U;
    struct flock mark {};
    mark.l_type = static_cast<short>(kind);
    mark.l_whence = SEEK_SET;
    mark.l_start = static_cast<off_t>(number % places);
    mark.l_len = 1;
    return mark;
}

int refusal_of(int descriptor, int command, struct flock mark)
{
    int result = 0;
    do
        result = ::fcntl(descriptor, command, &mark);
    while (result != 0 && errno == EINTR);
    return result == 0 ? 0 : errno;
}

}  // namespace

use_marks::use_marks(const std::string & folder, const std::string & name)
{
    const std::string path = joined(folder, name);
    descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
    if (descriptor == none)
        throw from_system(errno, path);
}

use_marks & use_marks::operator=(use_marks && other) noexcept
{
    std::swap(descriptor, other.descriptor);
    return *this;
}

use_marks::~use_marks()
{
    if (descriptor != none)
        ::close(descriptor);
}

void use_marks::use(std::uint64_t number) const
{
    refusal_of(descriptor, F_OFD_SETLKW, mark_at(number, F_RDLCK));
}

bool use_marks::claim(std::uint64_t number) const
{
    const int refusal = refusal_of(descriptor, F_OFD_SETLK, mark_at(number, F_WRLCK));
    return refusal != EAGAIN && refusal != EACCES;
}

void use_marks::release(std::uint64_t number) const
{
    refusal_of(descriptor, F_OFD_SETLK, mark_at(number, F_UNLCK));
}
