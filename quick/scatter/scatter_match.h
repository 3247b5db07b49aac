#pragma once

#include "designs/templates/poster_shape.h"
#include "support/files/text_file.h"
#include "support/numbers.h"

#include <string>

/// Which scatter suits which count of photos.

/// Slots whose photo lies along the poster, and across it.
struct slot_counts {
    int along = 0, cross = 0;
    bool operator==(const slot_counts &) const = default;
};

struct clamped_slots {
    slot_counts slots;
    int16 reduced = 0;  ///< how many times a count was lowered
};

/// The slots that a scatter can have: at most `most` of either kind, and fewer where the other kind has many.
/// Raises subscript (9) for counts that no table knows.
clamped_slots clamped_for_scatter(slot_counts slots, int most);

enum class scatter_search {
    found,
    substituted,  ///< no scatter has as many photos: the one looked at last stands in
    none,         ///< neither, and with so few photos none stands in
};

struct scatter_match {
    scatter_search result = scatter_search::none;
    std::string line;              ///< of the table
    bool squares_missing = false;  ///< the table has no list for square posters
};

/// What a line of the table says of its scatter.
struct scatter_entry {
    slot_counts slots;
    std::string name;
};

/// Reads it. Raises subscript (9) for a line with too few fields, overflow (6).
scatter_entry scatter_entry_of(const std::string & line);

/// Searches the table of scatters, `quick_scatter.ini`: lines "-:count:count:name" for exact counts, then
/// "total:count:count:name" for upright and landscape posters, then a line "SQUARES" and such lines for
/// square ones. Raises past_end_of_file (62) when "SQUARES" is the last line.
scatter_match find_scatter(line_source & table, poster_shape poster, slot_counts wanted);
