#pragma once

#include "designs/browser/theme_designs.h"
#include "designs/catalogue/design_record.h"
#include "support/orientation.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the design browser lists: which designs pass, and where they stand on its pages.

enum class design_family { all, scatter, block, theme, saved, frame };

/// The first entry of the list of photo counts.
inline constexpr std::string_view any_number = "Any number";

/// False for the names that the program keeps for itself.
bool is_offered(std::string_view name);

/// The filter of the families. The templates that the quick styles and the matrix write pass in none.
bool design_passes_family(const design_record & design, design_family family);

/// The filter of the poster's aspect: the browser asks for "2x3" alone.
bool fits_ratio(const design_record & design, std::string_view ratio);

/// False for a design that was drawn for the other orientation and may not be turned.
bool fits_orientation(const design_record & design, orientation view);

/// " 7 images", "12 images"; empty for a design that doesn't tell its count.
std::string count_label(std::string_view count);

/// True when the list has the text.
bool count_in_list(std::span<const std::string> list, std::string_view text);

struct browser_page {
    int count = 0;      ///< designs on this page
    bool more = false;  ///< others follow
    bool operator==(const browser_page &) const = default;
};

/// The page that begins at design `start` of `total`.
browser_page page_of(int total, int start);

/// Where the page before the one shown begins. `start` is what a listing left: the beginning of the next
/// page, or of the page shown when none follows.
int start_of_page_before(int start, bool more_pages);

/// The slots of a page with so many designs, in their order. The left column takes the odd one.
std::vector<int> filled_slots(int count);

/// The file of the sample: a design seen in the other orientation than it was drawn for has a twin, whose
/// name has "_" behind it. Empty for a design without a sample.
std::string sample_name(const design_record & design, orientation view);
