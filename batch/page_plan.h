#pragma once

#include "support/MFreeImage.h"

#include <string>

/// Where a poster comes to lie on a sheet of paper. Lengths are points, 72 an inch.
struct page_plan {
    double width = 0, height = 0;  ///< of the sheet as it is cut
    double bleed = 0;              ///< around it on each side, cut off
    /// The poster, from the lower left corner of the sheet with its bleed.
    double left = 0, bottom = 0, poster_width = 0, poster_height = 0;

    double whole_width() const { return width + 2 * bleed; }
    double whole_height() const { return height + 2 * bleed; }
    /// True where the poster leaves no paper free.
    bool is_covered() const;
    bool operator==(const page_plan &) const = default;
};

/// True for the name of a page: "A5", "A4", "A3", "A2", "Letter", "Legal", "Tabloid", in either case of the
/// letters, "30x45" in centimetres, "12x18in" in inches; from 5 cm to 500 cm.
bool is_page_size(const std::string & name);

/// Those that there are, in words.
inline constexpr const char * page_sizes =
    "A5, A4, A3, A2, Letter, Legal or Tabloid, or a size from 5 to 500 cm like 30x45, or 12x18in in inches";

/// The poster, whole and as large as the page allows, in its middle. The page lies as the poster does; one
/// without a name has the size of the poster at `dpi`. The bleed is in millimetres.
page_plan planned_page(const std::string & page, int bleed, picture_size poster, int dpi);
