#pragma once

#include "batch/page_plan.h"
#include "support/MFreeImage.h"

#include <optional>
#include <string>
#include <string_view>

/// A picture for a page, as the bytes of a JPEG.
struct page_picture {
    std::string_view jpeg;
    picture_size size;
};

/// What lies below and around the poster, with its bleed.
struct page_ground {
    rgb_triple color{.red = 255, .green = 255, .blue = 255};
    std::optional<page_picture> picture{};  ///< over the whole sheet
};

/// A PDF of one page with the poster on it, in sRGB: the JPEG's bytes as they are, the boxes of the sheet, of
/// its bleed and of its cut, and the program's name; no date and nothing else. The same bytes for the same
/// page.
std::string pdf_bytes(const page_plan & plan, const page_picture & poster, const page_ground & ground);
