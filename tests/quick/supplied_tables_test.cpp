// The generators over the supplied tables: every pair of counts that the limits let through, on every poster.

#include "quick/block/block_match.h"
#include "quick/block/block_plan.h"
#include "quick/matrix/matrix_grid.h"
#include "quick/matrix/matrix_plan.h"
#include "quick/scatter/scatter_match.h"
#include "quick/scatter/scatter_plan.h"
#include "support/files/text_file.h"
#include "tests/quick/posters.h"
#include "tests/quick/supplied_sections.h"
#include "tests/sweep_stride.h"

#include <gtest/gtest.h>
#include <set>

namespace {

// The counts that are left when any two up to 99 are clamped.
std::set<std::pair<int, int>> block_pairs(poster_shape poster)
{
    std::set<std::pair<int, int>> pairs;
    for (int portrait = 0; portrait < 100; portrait += sweep_stride)
        for (int landscape = 0; landscape < 100; ++landscape)
            if (portrait + landscape >= 3) {
                const block_counts held = clamped_for_blocks({portrait, landscape}, poster);
                pairs.insert({held.portrait, held.landscape});
            }
    return pairs;
}

std::set<std::pair<int, int>> scatter_pairs()
{
    std::set<std::pair<int, int>> pairs;
    for (int along = 0; along < 100; along += sweep_stride)
        for (int cross = 0; cross < 100; ++cross)
            if (along + cross >= 3) {
                const slot_counts held = clamped_for_scatter({along, cross}, 64).slots;
                pairs.insert({held.along, held.cross});
            }
    return pairs;
}

// How many places of a template a portrait photo fills, on the poster as it is seen.
int upright_places(const std::vector<std::string> & lines, poster_shape poster)
{
    int upright = 0;
    for (const std::string & line : lines) {
        const std::vector<std::string> fields = split(line, ':', 9);
        const bool tall = std::stoi(fields[2]) > std::stoi(fields[3]);
        upright += tall == (poster != poster_shape::landscape) ? 1 : 0;
    }
    return upright;
}

}  // namespace

TEST(supplied_blocks, hold_exactly_the_photos_of_every_pair_of_counts)
{
    const std::string table = text_of_table("quick_block.ini");
    const sections blocks = sections_of("block_templates");
    int pairs = 0;
    for (const poster_shape poster : posters)
        for (const auto & [portrait, landscape] : block_pairs(poster)) {
            line_source lines = line_source::of_text(table);
            block_match match;
            ASSERT_EQ(find_block(lines, poster, {portrait, landscape}, match), block_search::found)
                << portrait << " portrait, " << landscape << " landscape";
            ASSERT_TRUE(blocks.contains(match.name)) << match.name;
            const auto plan = template_lines(
                block_plan(blocks.at(match.name),
                           {.poster = poster, .doubled = match.doubled, .split = match.split}, listed({})));
            ASSERT_EQ(static_cast<int>(plan.size()), portrait + landscape) << match.name;
            ASSERT_EQ(upright_places(plan, poster), portrait) << match.name;
            ++pairs;
        }
    RecordProperty("pairs", pairs);
}

TEST(supplied_scatters, hold_exactly_the_photos_of_every_pair_of_counts)
{
    const std::string table = text_of_table("quick_scatter.ini");
    const sections scatters = sections_of("scatter_templates");
    int pairs = 0;
    for (const poster_shape poster : posters)
        for (const auto & [along, cross] : scatter_pairs()) {
            line_source lines = line_source::of_text(table);
            const scatter_match match = find_scatter(lines, poster, {along, cross});
            ASSERT_EQ(match.result, scatter_search::found) << along << " along, " << cross << " across";
            const scatter_entry entry = scatter_entry_of(match.line);
            ASSERT_TRUE(scatters.contains("[" + entry.name + "]")) << match.line;
            const scatter_layout plan =
                scatter_plan(scatters.at("[" + entry.name + "]"),
                             {.wanted = {along, cross}, .offered = entry.slots}, listed({}));
            ASSERT_EQ(static_cast<int>(plan.lines.size()), along + cross) << match.line;
            ASSERT_EQ(upright_places(plan.lines, poster_shape::portrait), along) << match.line;
            ++pairs;
        }
    RecordProperty("pairs", pairs);
}

TEST(supplied_grids, have_room_for_every_count_of_cells_up_to_two_hundred)
{
    const std::string table = text_of_table("quick_matrix.ini");
    for (const poster_shape poster : posters)
        for (int wanted = 1; wanted <= 200; ++wanted) {
            line_source lines = line_source::of_text(table);
            const matrix_lines found = find_matrix(lines, poster, wanted);
            ASSERT_FALSE(found.corrupt);
            const matrix_grid grid = matrix_grid_of(found.line);
            ASSERT_GE(grid.cells, wanted);
            ASSERT_EQ(grid.rows * grid.columns, grid.cells);
            const auto plan = matrix_plan({.grid = grid,
                                           .poster = poster,
                                           .portrait = wanted,
                                           .landscape = 0,
                                           .shapes =
                                               [&] {
                                                   std::string shapes;
                                                   for (int i = 0; i < wanted; ++i)
                                                       shapes += "p:";
                                                   return shapes;
                                               }()},
                                          listed({}));
            ASSERT_FALSE(plan.empty());
        }
}
