#include "photos/thumbnails/thumbnail_mark.h"

#include <charconv>

namespace {

// A JFIF header as the library writes it, and the comment behind it.
constexpr std::string_view start{"\xff\xd8\xff\xe0\0\x10JFIF\0", 11};
constexpr std::size_t header_end = 20;
constexpr std::string_view comment{"\xff\xfe\0", 3};  // its length has one more byte, and counts itself
constexpr std::string_view words = "thumbnail of a photo of ";
constexpr std::string_view unit = " bytes";
constexpr std::size_t words_at = header_end + comment.size() + 1;

}  // namespace

std::string marked_thumbnail(std::string jpeg, std::uint64_t photo_bytes)
{
    if (jpeg.size() < header_end || !jpeg.starts_with(start))
        return jpeg;
    const std::string text = std::string(words) + std::to_string(photo_bytes) + std::string(unit);
    return jpeg.insert(header_end, std::string(comment) + static_cast<char>(text.size() + 2) + text);
}

std::optional<std::uint64_t> marked_bytes(std::string_view beginning)
{
    if (beginning.size() < words_at || !beginning.starts_with(start) ||
        beginning.substr(header_end, comment.size()) != comment ||
        beginning.substr(words_at, words.size()) != words)
        return std::nullopt;
    const std::string_view rest = beginning.substr(words_at + words.size());
    std::uint64_t bytes = 0;
    const auto [end, fault] = std::from_chars(rest.data(), rest.data() + rest.size(), bytes);
    const bool is_whole =
        fault == std::errc{} && std::string_view(end, rest.data() + rest.size()).starts_with(unit);
    return is_whole ? std::optional(bytes) : std::nullopt;
}
