#include "pack/package_files.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/numbers.h"

#include <algorithm>
#include <cstdint>

void package_files::add(std::string bytes, const std::string & target)
{
    const std::string name = "f" + formatted(static_cast<int>(files.size()) + 1, 5);
    std::string place = target;
    std::ranges::replace(place, '/', '\\');
    lines.push_back("$$$ NAME " + name + " " + place);
    files.push_back({.name = name, .bytes = std::move(bytes)});
}

std::vector<archived_file> package_files::entries() const
{
    std::vector<archived_file> all{{.name = "manifest", .bytes = text_of(lines)}};
    all.insert(all.end(), files.begin(), files.end());
    return all;
}

// FNV-1a, 64 bits of which 48 are shown.
std::string mark_of(std::string_view bytes)
{
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<std::uint8_t>(byte)) * 0x100000001B3;
    std::string mark;
    for (int i = 0; i < 12; ++i, sum >>= 4U)
        mark += "0123456789abcdef"[sum & 15U];
    return mark;
}
