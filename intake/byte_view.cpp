#include "intake/byte_view.h"

#include <algorithm>

byte_view bytes_of_text(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

std::string_view text_of_bytes(byte_view bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

byte_view part(byte_view bytes, std::size_t at, std::size_t count)
{
    const std::size_t begin = std::min(at, bytes.size());
    return bytes.subspan(begin, std::min(count, bytes.size() - begin));
}

bool stands_at(byte_view bytes, std::size_t at, std::string_view text)
{
    return text_of_bytes(part(bytes, at, text.size())) == text;
}

std::uint8_t byte_at(byte_view bytes, std::size_t at)
{
    return at < bytes.size() ? bytes[at] : 0;
}

std::uint16_t number16(byte_view bytes, std::size_t at, byte_order order)
{
    const unsigned first = byte_at(bytes, at), second = byte_at(bytes, at + 1);
    return static_cast<std::uint16_t>(order == byte_order::big ? first << 8U | second : second << 8U | first);
}

std::uint32_t number32(byte_view bytes, std::size_t at, byte_order order)
{
    const std::uint32_t first = number16(bytes, at, order), second = number16(bytes, at + 2, order);
    return order == byte_order::big ? first << 16U | second : second << 16U | first;
}
