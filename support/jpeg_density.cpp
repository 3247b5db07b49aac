#include "support/jpeg_density.h"

#include <cstddef>

namespace {

// Of the header's bytes, from the start of the file.
constexpr std::string_view start{"\xff\xd8\xff\xe0", 4};
constexpr std::string_view name{"JFIF\0", 5};
constexpr std::size_t name_at = 6, unit_at = 13, across_at = 14, down_at = 16, end_at = 18;
constexpr char an_inch = 1;

bool has_header(std::string_view jpeg)
{
    return jpeg.size() >= end_at && jpeg.starts_with(start) && jpeg.substr(name_at, name.size()) == name;
}

void put_number(std::string & jpeg, std::size_t at, int number)
{
    jpeg[at] = static_cast<char>(number >> 8);
    jpeg[at + 1] = static_cast<char>(number & 255);
}

}  // namespace

std::string with_density(std::string jpeg, int dpi)
{
    if (!has_header(jpeg))
        return jpeg;
    jpeg[unit_at] = an_inch;
    put_number(jpeg, across_at, dpi);
    put_number(jpeg, down_at, dpi);
    return jpeg;
}

std::optional<int> density_of(std::string_view jpeg)
{
    if (!has_header(jpeg) || jpeg[unit_at] != an_inch)
        return std::nullopt;
    return static_cast<unsigned char>(jpeg[across_at]) << 8 | static_cast<unsigned char>(jpeg[across_at + 1]);
}
