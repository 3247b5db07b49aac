#include "intake/intake_report.h"

#include "photos/lists/pls_line.h"
#include "photos/photo_orientation.h"
#include "support/files/inner_path.h"

#include <algorithm>

namespace {

std::string line_of(const std::string & word, std::size_t count, const std::string & more = {})
{
    constexpr std::size_t column = 12;
    std::string number = std::to_string(count);
    number.insert(0, number.size() < 5 ? 5 - number.size() : 0, ' ');
    return word + std::string(column - word.size(), ' ') + number + more + "\n";
}

// A name may hold anything, a line's end too.
std::string shown(std::string path)
{
    std::ranges::replace_if(
        path, [](char sign) { return static_cast<unsigned char>(sign) < ' '; }, '?');
    return path;
}

bool is_very_small(const intake_photo & photo)
{
    return !photo.ready.empty() && std::min(photo.size.width, photo.size.height) < very_small;
}

std::string refused_part(const std::vector<intake_photo> & photos)
{
    std::string lines;
    std::size_t count = 0;
    for (const intake_photo & photo : photos)
        if (photo.ready.empty() && ++count > 0)
            lines += "  " + shown(photo.path) + ": " + photo.why + "\n";
    return line_of("refused", count) + lines;
}

std::string doubles_part(const intake_result & result)
{
    std::string lines;
    for (const auto & [path, first] : result.doubles)
        lines += "  " + shown(path) + ": the same bytes as " + shown(first) + "\n";
    return line_of("doubles", result.doubles.size()) + lines;
}

std::string small_part(const std::vector<intake_photo> & photos)
{
    std::string lines;
    for (const intake_photo & photo : photos)
        if (is_very_small(photo))
            lines += "  " + shown(photo.path) + ": " + std::to_string(photo.size.width) + " x " +
                     std::to_string(photo.size.height) + "\n";
    return line_of("very small", static_cast<std::size_t>(std::ranges::count_if(photos, is_very_small))) +
           lines;
}

}  // namespace

std::string table_of(const intake_result & result)
{
    std::size_t taken = 0, prepared = 0;
    for (const intake_photo & photo : result.photos)
        if (!photo.ready.empty())
            ++(photo.need == photo_need::nothing ? taken : prepared);
    const std::string made = prepared == 0 ? "" : " (" + std::to_string(result.made) + " made now)";
    return line_of("taken", taken, " as they are") + line_of("prepared", prepared, made) +
           refused_part(result.photos) + doubles_part(result) + small_part(result.photos);
}

std::vector<std::string> list_of(const std::vector<intake_photo> & photos)
{
    std::vector<std::string> lines;
    for (const intake_photo & photo : photos)
        if (!photo.ready.empty())
            lines.push_back(list_line(counted_orientation(photo.size), photo.ready));
    return lines;
}
