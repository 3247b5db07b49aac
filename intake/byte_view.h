#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// Bytes of a file that anyone may have written, read by place. What lies outside reads as 0, so that a field
/// that points beyond the end leads nowhere.
using byte_view = std::span<const std::uint8_t>;

byte_view bytes_of_text(std::string_view text);
std::string_view text_of_bytes(byte_view bytes);

/// `count` bytes from `at`, fewer where the bytes end before.
byte_view part(byte_view bytes, std::size_t at, std::size_t count);

/// True when `text` stands at that place.
bool stands_at(byte_view bytes, std::size_t at, std::string_view text);

std::uint8_t byte_at(byte_view bytes, std::size_t at);

/// Which end of a number comes first.
enum class byte_order : std::uint8_t { big, little };

std::uint16_t number16(byte_view bytes, std::size_t at, byte_order order);
std::uint32_t number32(byte_view bytes, std::size_t at, byte_order order);
