#include "photos/lists/pls_line.h"

#include <algorithm>

std::string photo_of_line(std::string_view line)
{
    constexpr std::size_t letter_and_blank = 2;
    return std::string(line.substr(std::min(line.size(), letter_and_blank)));
}

std::string list_line(std::optional<orientation> shape, std::string_view path)
{
    return (shape == orientation::portrait ? "P " : "L ") + std::string(path);
}
