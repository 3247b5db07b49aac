#include "quick/block/block_match.h"

#include "quick/template_text.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int upright_for_lying = 2;  // rectangles of either shape that take the same room
constexpr int16 substitute_cuts = 2;

struct block_limits {
    int portrait = 0, landscape = 0;
    int budget = 0;  ///< of room, counted in lying rectangles
    int floor = 0;   ///< no count is lowered below it for the budget's sake
};

block_limits limits_of(poster_shape poster)
{
    if (poster == poster_shape::square)
        return {.portrait = 40, .landscape = 25, .budget = 25, .floor = 15};
    return {.portrait = 88, .landscape = 46, .budget = 46, .floor = 30};
}

// The landscape tables are filled to the last place, the others keep one free: hence the two tests.
bool fits(block_counts counts, poster_shape poster, int budget)
{
    const int room = (budget - counts.landscape) * upright_for_lying;
    return poster == poster_shape::landscape ? room >= counts.portrait : room > counts.portrait;
}

std::string_view section_prefix(poster_shape poster)
{
    if (poster == poster_shape::square)
        return "#SQUA";
    return poster == poster_shape::portrait ? "#PORT" : "#LAND";
}

bool find_section(line_source & table, std::string_view prefix)
{
    while (!table.at_end())
        if (table.read_line().starts_with(prefix))
            return true;
    return false;
}

block_counts counts_of(const std::string & code)
{
    const std::size_t length = std::min<std::size_t>(code.size(), 2);
    return {.portrait = nearest16(leading_number(std::string_view(code).substr(0, length))),
            .landscape = nearest16(leading_number(std::string_view(code).substr(code.size() - length)))};
}

// The cuts that bring an entry for `own` to the counts that are wanted.
std::optional<int> cuts_between(block_counts own, block_counts wanted)
{
    const int cuts = own.landscape - wanted.landscape;
    if (cuts < 0 || wanted.landscape < 0 || own.portrait + upright_for_lying * cuts != wanted.portrait)
        return std::nullopt;
    return cuts;
}

// True when the entry serves.
bool take_entry(const std::string & line, block_counts wanted, block_match & match)
{
    const std::vector<std::string> fields = fields_of(line);
    match.name = "[" + field_at(fields, 1) + "]";
    match.doubled = number_at(fields, 2);
    const std::optional<int> cuts = cuts_between(counts_of(fields.front()), wanted);
    if (!cuts)
        return false;
    match.split = *cuts == 0 ? number_at(fields, 3) : narrow(*cuts);
    return true;
}

}  // namespace

block_counts clamped_for_blocks(block_counts counts, poster_shape poster)
{
    const block_limits limits = limits_of(poster);
    counts.portrait = std::min(counts.portrait, limits.portrait);
    counts.landscape = std::min(counts.landscape, limits.landscape);
    // Which of the two is lowered first makes no difference: they are lowered together.
    if (counts.portrait < 1 && poster != poster_shape::landscape)
        return counts;
    while (!fits(counts, poster, limits.budget)) {
        if (counts.landscape > limits.floor)
            counts.landscape -= 1;
        if (counts.portrait > limits.floor)
            counts.portrait -= upright_for_lying;
    }
    return counts;
}

block_search find_block(line_source & table, poster_shape poster, block_counts wanted, block_match & match)
{
    if (!find_section(table, section_prefix(poster)))
        return block_search::no_section;
    while (!table.at_end()) {
        const std::string line = table.read_line();
        if (line.starts_with('#')) {
            match.split = substitute_cuts;
            return block_search::substituted;
        }
        if (take_entry(line, wanted, match))
            return block_search::found;
    }
    return block_search::ran_out;
}
