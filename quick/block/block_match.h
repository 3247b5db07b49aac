#pragma once

#include "designs/templates/poster_shape.h"
#include "support/files/text_file.h"
#include "support/numbers.h"

#include <string>

/// Which block suits which count of photos.

/// Photos, or slots for them, of either orientation.
struct block_counts {
    int portrait = 0, landscape = 0;
    bool operator==(const block_counts &) const = default;
};

/// The counts that a block can hold, at most those given: each has its limit, and two upright rectangles take
/// the room of a lying one.
block_counts clamped_for_blocks(block_counts counts, poster_shape poster);

/// A block and what is to be done with it.
struct block_match {
    std::string name{};            ///< its header, with brackets
    int16 doubled = 0, split = 0;  ///< rectangles to widen, and to cut in two
    bool operator==(const block_match &) const = default;
};

enum class block_search {
    found,
    substituted,  ///< no entry serves these counts: the last of the section stands in, with two cuts
    no_section,   ///< the table has no section for the poster
    ran_out,      ///< the table ended inside the section
};

/// Searches the table of blocks, `quick_block.ini`: sections that open with "#PORT", "#LAND" or "#SQUA" and
/// end at the next "#"; entries "portrait counts, a sign, landscape counts : block : doubled : split". An
/// entry for a and b photos serves a + 2i and b - i as well, with i cuts; the first that serves wins. What
/// was read last stays in `match` whatever comes of the search. Raises subscript (9) for an entry with too
/// few fields, overflow (6).
block_search find_block(line_source & table, poster_shape poster, block_counts wanted, block_match & match);
