#pragma once

#include "intake/byte_view.h"

#include <optional>
#include <string>

/// Kinds of picture files, told by their first bytes: names lie.
enum class picture_kind : std::uint8_t { none, jpeg, png, gif, bmp, tiff, webp, heif, raw };

/// Bytes of a file's beginning that tell its kind.
inline constexpr std::size_t telling_bytes = 64;

/// The kind of a file that begins with these bytes. The raw files of many cameras begin as a TIFF does; those
/// are told by the ending of the name.
picture_kind kind_of(byte_view head, std::string_view name);

/// True for a name that ends as pictures do: ".jpg", ".heic" …
bool has_picture_name(std::string_view name);

/// The word for a kind, as messages and the decoder's command line have it: "jpeg", "heif" …
std::string word_of(picture_kind kind);
std::optional<picture_kind> kind_of_word(std::string_view word);
