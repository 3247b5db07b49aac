#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What a thumbnail tells of its photo, as a comment in the JPEG: how many bytes the photo's file had. With
/// the time, which the thumbnail's file shares with the photo's, that tells of a photo that was replaced.

/// The JPEG with that mark; one without a JFIF header at its start stays as it is. The pixels are the same.
std::string marked_thumbnail(std::string jpeg, std::uint64_t photo_bytes);

/// How far into the file a mark can reach.
inline constexpr std::size_t room_of_mark = 80;

/// The bytes of the photo, by the beginning of a thumbnail; nothing for one without a mark.
std::optional<std::uint64_t> marked_bytes(std::string_view beginning);
