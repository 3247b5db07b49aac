#include "photos/lists/photo_table.h"

#include "support/platform_error.h"

namespace {

std::size_t checked(int index)
{
    if (index < 0 || index >= photo_table::capacity)
        throw platform_error(error_number::subscript, "The table of photos has no such entry.");
    return static_cast<std::size_t>(index);
}

}  // namespace

std::string & photo_table::operator[](int index)
{
    return photos[checked(index)];
}

const std::string & photo_table::operator[](int index) const
{
    return photos[checked(index)];
}
