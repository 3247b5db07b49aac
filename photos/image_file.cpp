#include "photos/image_file.h"

#include "support/files/paths.h"

#include <array>

namespace {

struct known_ending {
    std::string_view text;
    int format;
};

constexpr std::size_t shortest_path = 5;
constexpr std::array<known_ending, 6> known_endings{
    {{".jpg", 2}, {".gif", 25}, {".png", 13}, {".ico", 1}, {".jpeg", 2}, {".tiff", 18}}};

}  // namespace

image_file image_file_of(std::string_view path)
{
    if (path.size() < shortest_path)
        return {};
    const std::string lower = lower_case(path);
    for (const known_ending & known : known_endings)
        if (lower.ends_with(known.text))
            return {.format = known.format,
                    .base = std::string(path.substr(0, path.size() - known.text.size()))};
    return {};
}
