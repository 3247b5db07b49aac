#include "designs/templates/location.h"

#include "support/platform_error.h"

namespace {

std::size_t checked(int index)
{
    if (index < 0 || index >= location_table::capacity)
        throw platform_error(error_number::subscript, "The table of locations has no such entry.");
    return static_cast<std::size_t>(index);
}

const location blank{.frame = 0, .shadow = 0};

}  // namespace

location & location_table::operator[](int index)
{
    return places[checked(index)];
}

const location & location_table::operator[](int index) const
{
    return places[checked(index)];
}

void location_table::add(const location & place)
{
    (*this)[count] = place;
    ++count;
}

void location_table::clear()
{
    places.fill(blank);
    count = 0;
}
