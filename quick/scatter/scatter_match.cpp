#include "quick/scatter/scatter_match.h"

#include "quick/scatter/scatter_tables.h"
#include "quick/template_text.h"
#include "support/platform_error.h"

namespace {

constexpr int fewest_substituted = 11;  // photos; with fewer one too many or too few would be seen
constexpr std::string_view squares = "SQUARES";

template <typename Table>
int limit_in(const Table & limits, int index)
{
    if (index < 0 || index >= static_cast<int>(limits.size()))
        throw platform_error(error_number::subscript, "There is no scatter for so many photos.");
    return limits[static_cast<std::size_t>(index)];
}

void lower(int & count, int limit, int16 & reduced)
{
    if (count <= limit)
        return;
    count = limit;
    ++reduced;
}

// A square poster is asked for like a landscape one here; blocks ask for it like an upright one.
std::string exact_key(poster_shape poster, slot_counts wanted)
{
    const bool upright = poster == poster_shape::portrait;
    return "-:" + formatted(upright ? wanted.along : wanted.cross, 2) + ":" +
           formatted(upright ? wanted.cross : wanted.along, 2);
}

std::string first_field(const std::string & line)
{
    return line.substr(0, line.find(':'));
}

// True when a line has exactly these counts; otherwise `line` is the first one behind the exact list.
bool find_exact(line_source & table, const std::string & key, std::string & line)
{
    while (!table.at_end()) {
        line = table.read_line();
        if (line.starts_with(key))
            return true;
        if (!line.starts_with('-'))
            break;
    }
    return false;
}

// Moves `line` behind the mark. False when the table ends first.
bool pass_squares(line_source & table, std::string & line)
{
    while (first_field(line) != squares) {
        if (table.at_end())
            return false;
        line = table.read_line();
    }
    line = table.read_line();
    return true;
}

// True when `line` is one with that total; otherwise it is the last of its list.
bool find_total(line_source & table, poster_shape poster, const std::string & total, std::string & line)
{
    while (first_field(line) != total) {
        if (table.at_end())
            return false;
        std::string next = table.read_line();
        if (poster != poster_shape::square && next.starts_with(squares))
            return false;
        line = std::move(next);
    }
    return true;
}

}  // namespace

clamped_slots clamped_for_scatter(slot_counts slots, int most)
{
    clamped_slots clamped{.slots = slots};
    auto & [along, cross] = clamped.slots;
    lower(along, most, clamped.reduced);
    lower(cross, most, clamped.reduced);
    if (along > cross)
        lower(along, limit_in(scatter_limit_cross, cross), clamped.reduced);
    else
        lower(cross, limit_in(scatter_limit_along, along), clamped.reduced);
    return clamped;
}

scatter_entry scatter_entry_of(const std::string & line)
{
    const std::vector<std::string> fields = fields_of(line);
    return {.slots = {.along = number_at(fields, 1), .cross = number_at(fields, 2)},
            .name = field_at(fields, 3)};
}

scatter_match find_scatter(line_source & table, poster_shape poster, slot_counts wanted)
{
    scatter_match match;
    const int total = wanted.along + wanted.cross;
    if (find_exact(table, exact_key(poster, wanted), match.line)) {
        match.result = scatter_search::found;
        return match;
    }
    if (poster == poster_shape::square)
        match.squares_missing = !pass_squares(table, match.line);
    if (find_total(table, poster, formatted(total, 2), match.line))
        match.result = scatter_search::found;
    else if (total >= fewest_substituted)
        match.result = scatter_search::substituted;
    return match;
}
