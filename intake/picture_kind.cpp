#include "intake/picture_kind.h"

#include "support/files/paths.h"

#include <algorithm>
#include <array>

namespace {

using namespace std::string_view_literals;

constexpr std::array raw_endings{".dng"sv, ".nef"sv, ".nrw"sv, ".arw"sv, ".sr2"sv, ".srf"sv,
                                 ".cr2"sv, ".cr3"sv, ".crw"sv, ".orf"sv, ".raf"sv, ".rw2"sv,
                                 ".raw"sv, ".pef"sv, ".srw"sv, ".3fr"sv, ".erf"sv, ".kdc"sv,
                                 ".dcr"sv, ".mrw"sv, ".x3f"sv, ".iiq"sv, ".mef"sv, ".mos"sv};
constexpr std::array other_endings{".jpg"sv, ".jpeg"sv, ".jpe"sv,  ".jfif"sv, ".png"sv,  ".gif"sv, ".bmp"sv,
                                   ".tif"sv, ".tiff"sv, ".webp"sv, ".heic"sv, ".heif"sv, ".hif"sv, ".avif"sv};

constexpr std::array words{"none"sv, "jpeg"sv, "png"sv,  "gif"sv, "bmp"sv,
                           "tiff"sv, "webp"sv, "heif"sv, "raw"sv};

template <typename Endings>
bool ends_with_one_of(std::string_view name, const Endings & endings)
{
    const std::string lower = lower_case(name);
    return std::ranges::any_of(endings, [&](std::string_view each) { return lower.ends_with(each); });
}

bool begins_with_one_of(byte_view head, std::initializer_list<std::string_view> marks)
{
    return std::ranges::any_of(marks, [&](std::string_view mark) { return stands_at(head, 0, mark); });
}

// Files of boxes: the first one, "ftyp", names the brands that the file is made by.
picture_kind kind_of_boxes(byte_view head)
{
    constexpr std::array brands{"heic"sv, "heix"sv, "heim"sv, "heis"sv, "hevc"sv,
                                "hevx"sv, "mif1"sv, "msf1"sv, "avif"sv, "avis"sv};
    if (stands_at(head, 8, "crx "))
        return picture_kind::raw;
    const std::size_t end = std::min<std::size_t>(number32(head, 0, byte_order::big), head.size());
    for (std::size_t at = 8; at + 4 <= end; at += 4)
        if (at != 12 && std::ranges::find(brands, text_of_bytes(part(head, at, 4))) != brands.end())
            return picture_kind::heif;
    return picture_kind::none;
}

picture_kind kind_of_tiff(byte_view head, std::string_view name)
{
    return stands_at(head, 8, "CR\x02") || ends_with_one_of(name, raw_endings) ? picture_kind::raw
                                                                               : picture_kind::tiff;
}

}  // namespace

picture_kind kind_of(byte_view head, std::string_view name)
{
    if (stands_at(head, 0, "\xFF\xD8\xFF"))
        return picture_kind::jpeg;
    if (stands_at(head, 0, "\x89PNG\r\n\x1A\n"))
        return picture_kind::png;
    if (begins_with_one_of(head, {"GIF87a", "GIF89a"}))
        return picture_kind::gif;
    if (stands_at(head, 0, "RIFF") && stands_at(head, 8, "WEBP"))
        return picture_kind::webp;
    if (stands_at(head, 4, "ftyp"))
        return kind_of_boxes(head);
    if (begins_with_one_of(head, {"II*\0"sv, "MM\0*"sv}))
        return kind_of_tiff(head, name);
    if (begins_with_one_of(head, {"IIRO", "IIRS", "MMOR", "IIU\0"sv, "FUJIFILMCCD-RAW", "\0MRM"sv, "FOVb"}) ||
        (stands_at(head, 0, "II") && stands_at(head, 6, "HEAPCCDR")))
        return picture_kind::raw;
    return stands_at(head, 0, "BM") && head.size() > 26 ? picture_kind::bmp : picture_kind::none;
}

bool has_picture_name(std::string_view name)
{
    return ends_with_one_of(name, other_endings) || ends_with_one_of(name, raw_endings);
}

std::string word_of(picture_kind kind)
{
    return std::string(words.at(static_cast<std::size_t>(kind)));
}

std::optional<picture_kind> kind_of_word(std::string_view word)
{
    const auto found = std::ranges::find(words, word);
    return found == words.end() ? std::nullopt
                                : std::optional(static_cast<picture_kind>(found - words.begin()));
}
