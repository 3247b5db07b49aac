#include "designs/templates/location_line.h"

#include "support/files/text_file.h"

namespace {

constexpr std::size_t fields_of_a_line = 9;
constexpr std::size_t rotation_field = 4;
constexpr int soft_edge = 20;  // pixels

}  // namespace

std::optional<location> parse_location(std::string_view line)
{
    const std::vector<std::string> fields = split(line, ':', fields_of_a_line);
    if (field_at(fields, rotation_field).empty())
        return std::nullopt;
    const auto number = [&](std::size_t index) { return nearest16(leading_number(field_at(fields, index))); };
    return location{.top = number(0),
                    .left = number(1),
                    .height = number(2),
                    .width = number(3),
                    .rotation = number(rotation_field),
                    .frame = number(5),
                    .shadow = number(6),
                    .spare = number(7),
                    .file = field_at(fields, 8)};
}

std::string location_text(const location & place, line_digits digits)
{
    std::string line;
    for (const int16 number : {place.top, place.left, place.height, place.width})
        line += formatted(number, digits.place) + ':';
    line += formatted(place.rotation, digits.rotation) + ':';
    for (const int16 number : {place.frame, place.shadow, place.spare})
        line += formatted(number) + ':';
    return line + place.file;
}

std::vector<std::string> template_lines(const std::vector<location> & places, line_digits digits)
{
    std::vector<std::string> lines;
    lines.reserve(places.size());
    for (const location & place : places)
        lines.push_back(location_text(place, digits));
    return lines;
}

location softened(const location & place)
{
    location larger = place;
    larger.top = narrow(place.top - soft_edge);
    larger.left = narrow(place.left - soft_edge);
    larger.height = narrow(place.height + 2 * soft_edge);
    larger.width = narrow(place.width + 2 * soft_edge);
    return larger;
}
