// The blocks: for every pair of counts that the limits leave, the poster is tiled by exactly so many cells of
// each kind.
#include "tests/seed/plain_tables.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace plain;

namespace {

struct poster {
    std::string prefix;
    int height;  // of the upright poster; the width is 2000
    int most_portraits, most_landscapes, budget, floor;
    bool turned() const { return prefix == "#LAND"; }
};

const std::vector<poster> posters{
    {"#PORT", 3000, 88, 46, 46, 30}, {"#LAND", 3000, 88, 46, 46, 30}, {"#SQUA", 2000, 40, 25, 25, 15}};

using pair = std::pair<int, int>;  // portraits, landscapes

/// The counts as the program lowers them.
pair lowered(const poster & on, int portraits, int landscapes)
{
    portraits = std::min(portraits, on.most_portraits);
    landscapes = std::min(landscapes, on.most_landscapes);
    const auto fits = [&] {
        const int room = (on.budget - landscapes) * 2;
        return on.turned() ? room >= portraits : portraits < 1 || room > portraits;
    };
    while (!fits()) {
        const bool fewer_landscapes = landscapes > on.floor, fewer_portraits = portraits > on.floor;
        landscapes -= fewer_landscapes ? 1 : 0;
        portraits -= fewer_portraits ? 2 : 0;
    }
    return {portraits, landscapes};
}

/// Every pair that is left of three photos or more.
std::set<pair> possible_pairs(const poster & on)
{
    std::set<pair> found;
    for (int portraits = 0; portraits <= 100; ++portraits)
        for (int landscapes = 0; landscapes <= 60; ++landscapes)
            if (portraits + landscapes >= 3)
                found.insert(lowered(on, portraits, landscapes));
    return found;
}

struct entry {
    pair counts;
    std::string block;
    int doubled, split;
};

/// The entries of one poster, and whether a line with "#" closes them.
std::vector<entry> entries_of(const poster & on)
{
    static const std::vector<std::string> lines = lines_of("quick_block.ini");
    auto line =
        std::ranges::find_if(lines, [&](const std::string & text) { return text.starts_with(on.prefix); });
    EXPECT_NE(line, lines.end()) << on.prefix;
    std::vector<entry> found;
    for (line += line != lines.end(); line != lines.end() && !line->starts_with('#'); ++line) {
        const std::vector<std::string> fields = split(*line);
        EXPECT_EQ(fields.size(), 4u) << *line;
        EXPECT_EQ(fields.at(0).size(), 5u) << *line;
        found.push_back({{number(fields.at(0).substr(0, 2)), number(fields.at(0).substr(3))},
                         fields.at(1),
                         number(fields.at(2)),
                         number(fields.at(3))});
    }
    EXPECT_NE(line, lines.end()) << on.prefix << " is not closed";
    return found;
}

struct match {
    const entry * from;
    int cuts;
};

/// The first entry that reaches the counts, one landscape cut into two portraits at each step.
std::optional<match> matched(const std::vector<entry> & entries, pair counts)
{
    for (const entry & one : entries) {
        const int cuts = one.counts.second - counts.second;
        if (cuts >= 0 && counts.first == one.counts.first + 2 * cuts)
            return match{&one, cuts == 0 ? one.split : cuts};
    }
    return std::nullopt;
}

std::map<std::string, std::vector<cell>> read_blocks()
{
    std::map<std::string, std::vector<cell>> blocks;
    std::vector<cell> * block = nullptr;
    for (const std::string & line : lines_of("block_templates")) {
        if (line.starts_with('[')) {
            EXPECT_TRUE(line.ends_with(']')) << line;
            const auto [place, fresh] = blocks.try_emplace(line.substr(1, line.size() - 2));
            EXPECT_TRUE(fresh) << line;
            block = &place->second;
        } else if (!line.starts_with('#')) {
            const std::vector<std::string> fields = split(line);
            EXPECT_EQ(fields.size(), 4u) << line;
            block->push_back({number(fields[0]), number(fields[1]), number(fields[2]), number(fields[3])});
        }
    }
    return blocks;
}

const std::map<std::string, std::vector<cell>> & all_blocks()
{
    static const auto blocks = read_blocks();
    return blocks;
}

/// The cells of a match: the first ones as high again, the next ones cut across the poster as it hangs.
std::vector<cell> cells_of(const poster & on, const match & found)
{
    std::vector<cell> cells;
    int doubled = found.from->doubled, cuts = found.cuts;
    for (cell one : all_blocks().at(found.from->block)) {
        if (doubled-- > 0) {
            one.height *= 2;
        } else if (cuts-- > 0) {
            int & side = on.turned() ? one.height : one.width;
            EXPECT_EQ(side % 4, 0) << found.from->block;
            side /= 2;
            cells.push_back(one);
            (on.turned() ? one.top : one.left) += side;
        }
        cells.push_back(one);
    }
    return cells;
}

template <typename check>
void for_every_pair(const check & look)
{
    for (const poster & on : posters) {
        const std::vector<entry> entries = entries_of(on);
        for (const pair & counts : possible_pairs(on)) {
            SCOPED_TRACE(on.prefix + " " + std::to_string(counts.first) + " " +
                         std::to_string(counts.second));
            const auto found = matched(entries, counts);
            ASSERT_TRUE(found);
            look(on, counts, cells_of(on, *found));
        }
    }
}

/// True for a bare grid: all cells of a kind as large as each other, but for a few pixels.
bool is_plain(const std::vector<cell> & cells)
{
    const auto spread = [&](auto of_kind) {
        double least = 1e9, most = 0;
        for (const cell & one : cells)
            if ((one.*of_kind)()) {
                least = std::min(least, 1.0 * one.height * one.width);
                most = std::max(most, 1.0 * one.height * one.width);
            }
        return most == 0 ? 1 : most / least;
    };
    return spread(&cell::tall) < 1.15 && spread(&cell::wide) < 1.15;
}

}  // namespace

TEST(block_tables, the_limits_leave_as_many_pairs_as_they_should)
{
    EXPECT_EQ(possible_pairs(posters[0]).size(), 2153u);
    EXPECT_EQ(possible_pairs(posters[1]).size(), 2197u);
    EXPECT_EQ(possible_pairs(posters[2]).size(), 620u);
}

TEST(block_tables, have_no_blank_line)
{
    for (const char * name : {"quick_block.ini", "block_templates"})
        for (const std::string & line : lines_of(name))
            EXPECT_FALSE(line.empty()) << name;
}

TEST(block_tables, every_pair_finds_exactly_its_cells_wall_to_wall)
{
    for_every_pair([](const poster & on, pair counts, const std::vector<cell> & cells) {
        const auto tall = std::ranges::count_if(cells, &cell::tall),
                   wide = std::ranges::count_if(cells, &cell::wide);
        EXPECT_EQ(on.turned() ? wide : tall, counts.first);
        EXPECT_EQ(on.turned() ? tall : wide, counts.second);
        EXPECT_TRUE(tiles(cells, 2000, on.height));
    });
}

TEST(block_tables, cells_have_the_shape_of_a_photo_nearly_always)
{
    int all = 0, long_ones = 0;
    for_every_pair([&](const poster &, pair, const std::vector<cell> & cells) {
        all += static_cast<int>(cells.size());
        for (const cell & one : cells) {
            long_ones += one.ratio() > 1.7;
            EXPECT_LT(one.ratio(), 2.3);
        }
    });
    EXPECT_LT(long_ones, all / 1000);
}

TEST(block_tables, an_entry_stands_before_all_that_reach_its_count_by_cuts)
{
    for (const poster & on : posters) {
        const std::vector<entry> entries = entries_of(on);
        for (const entry & one : entries)
            EXPECT_EQ(matched(entries, one.counts)->from, &one) << on.prefix << " " << one.block;
    }
}

TEST(block_tables, every_entry_is_reached_and_names_a_block_that_no_other_section_names)
{
    std::set<std::string> named;
    for (const poster & on : posters) {
        const std::set<pair> possible = possible_pairs(on);
        for (const entry & one : entries_of(on)) {
            EXPECT_TRUE(all_blocks().contains(one.block)) << one.block;
            EXPECT_TRUE(possible.contains(one.counts)) << one.block;
            EXPECT_TRUE(named.insert(one.block).second) << one.block;
        }
    }
    EXPECT_EQ(named.size(), all_blocks().size());
}

TEST(block_tables, some_entries_widen_a_cell_and_each_widened_cell_is_the_largest)
{
    int widening = 0;
    for (const poster & on : posters)
        for (const entry & one : entries_of(on)) {
            if (one.doubled == 0)
                continue;
            ++widening;
            const std::vector<cell> cells = cells_of(on, {&one, 0});
            EXPECT_TRUE(cells.front().tall()) << one.block;
            for (const cell & other : cells)
                EXPECT_LE(other.height * other.width, cells.front().height * cells.front().width)
                    << one.block;
        }
    EXPECT_GT(widening, 20);
}

TEST(block_tables, few_blocks_are_plain_grids)
{
    int plain_ones = 0, all = 0;
    for (const poster & on : posters)
        for (const entry & one : entries_of(on)) {
            ++all;
            plain_ones += is_plain(cells_of(on, {&one, one.split}));
        }
    EXPECT_LT(plain_ones * 20, all);
}

TEST(block_tables, no_cell_is_too_small_to_show_a_photo)
{
    for_every_pair([](const poster &, pair, const std::vector<cell> & cells) {
        for (const cell & one : cells)
            EXPECT_GE(std::min(one.height, one.width), 76);
    });
}
