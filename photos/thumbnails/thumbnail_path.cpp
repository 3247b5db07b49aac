#include "photos/thumbnails/thumbnail_path.h"

#include "support/files/paths.h"

namespace {

constexpr std::string_view thumbnail_folder = "sample_thumbs";

bool is_separator(char sign)
{
    return sign == '/' || sign == '\\';
}

// Position of the last "sample_thumbs" between two separators, of which the first isn't the path's first
// character; npos when there is none.
std::size_t thumbnail_folder_in(std::string_view path)
{
    std::size_t at = path.rfind(thumbnail_folder);
    for (; at != std::string_view::npos && at >= 2; at = path.rfind(thumbnail_folder, at - 1)) {
        const std::size_t end = at + thumbnail_folder.size();
        if (is_separator(path[at - 1]) && end < path.size() && is_separator(path[end]))
            return at;
    }
    return std::string_view::npos;
}

}  // namespace

std::string thumbnail_path(std::string_view photo)
{
    const std::size_t at = last_separator(photo);
    const std::size_t name = at == std::string_view::npos ? 0 : at + 1;
    return std::string(photo.substr(0, name)) + std::string(thumbnail_folder) + path_separator +
           std::string(photo.substr(name));
}

bool is_thumbnail(std::string_view path)
{
    return thumbnail_folder_in(path) != std::string_view::npos;
}

std::string photo_path(std::string_view path)
{
    std::string photo(path);
    const std::size_t at = thumbnail_folder_in(path);
    if (at != std::string_view::npos)
        photo.erase(at, thumbnail_folder.size() + 1);
    return photo;
}
