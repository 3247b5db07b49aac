// The pieces of the jigsaw, assembled at the steps at which the program sets them.
#include "support/MFreeImage.h"
#include "tests/seed/assembled.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace {

using jigsaw_shape = jigsaw::poster;
using rim = jigsaw::rim;
using cut = jigsaw::cut;

void report(const jigsaw & puzzle, const measured & found)
{
    std::printf("%d x %d: %.2f%% once, gap %d, seam %d, overlap %d\n", puzzle.rows, puzzle.columns,
                100 * found.exactly_one, found.widest_gap, found.widest_seam, found.widest_overlap);
}

class jigsaws : public testing::TestWithParam<jigsaw> {};

}  // namespace

TEST_P(jigsaws, interlock_with_thin_even_seams_on_the_poster)
{
    const jigsaw & puzzle = GetParam();
    const measured found = measure(assembled(puzzle));
    report(puzzle, found);
    EXPECT_GE(found.exactly_one, 0.99);
    EXPECT_LE(found.widest_gap, 2);
    EXPECT_LE(found.widest_overlap, 2);
    EXPECT_LE(found.widest_seam, 6);
    EXPECT_GE(found.widest_seam, 2);
    const int width = puzzle.shape == jigsaw_shape::landscape ? 3000 : 2000;
    EXPECT_GE(found.left, 0);
    EXPECT_GE(found.top, 0);
    EXPECT_LE(found.right, width);
    EXPECT_LE(found.bottom, 5000 - width);
    EXPECT_NEAR(found.left, width - found.right, 60);
}

INSTANTIATE_TEST_SUITE_P(all, jigsaws,
                         testing::Values(jigsaw{4, 6, jigsaw_shape::landscape, rim::knobs, cut::one},
                                         jigsaw{6, 4, jigsaw_shape::portrait, rim::knobs, cut::one},
                                         jigsaw{8, 12, jigsaw_shape::landscape, rim::straight, cut::one},
                                         jigsaw{12, 8, jigsaw_shape::portrait, rim::straight, cut::one},
                                         jigsaw{5, 7, jigsaw_shape::landscape, rim::straight, cut::one},
                                         jigsaw{2, 3, jigsaw_shape::landscape, rim::straight, cut::one},
                                         jigsaw{4, 4, jigsaw_shape::landscape, rim::knobs, cut::four},
                                         jigsaw{4, 4, jigsaw_shape::portrait, rim::knobs, cut::four}));

TEST(jigsaw, with_straight_edges_is_a_rectangle_without_a_hole)
{
    for (const jigsaw & puzzle : {jigsaw{8, 12, jigsaw_shape::landscape, rim::straight, cut::one},
                                  jigsaw{6, 4, jigsaw_shape::portrait, rim::straight, cut::one}})
        EXPECT_GT(measure(assembled(puzzle)).filled, 0.999);
}

TEST(jigsaw, a_piece_in_the_wrong_place_is_seen)
{
    const jigsaw puzzle{4, 6, jigsaw_shape::landscape, rim::straight, cut::one};
    laid_out pieces = laid(puzzle);
    pieces.spots[8].left += 9;
    const measured moved = measure(assembled(puzzle, pieces));
    EXPECT_GT(moved.widest_overlap, 6);
    EXPECT_GT(moved.widest_seam, 6);
    pieces = laid(puzzle);
    pieces.spots[8].piece = "puzzle/puz_22.gif";
    EXPECT_GT(measure(assembled(puzzle, pieces)).widest_overlap, 20);
}

TEST(jigsaw, a_piece_keeps_clear_of_the_rim_of_its_square)
{
    for (const auto & entry : std::filesystem::directory_iterator(BUILT_SEED "/puzzle")) {
        const bitmap mask = load_picture(picture_format::gif, entry.path().string());
        for (int i = 0; i < mask.width(); ++i)
            for (const auto seen : {pixel_at(mask, i, 0), pixel_at(mask, i, mask.height() - 1),
                                    pixel_at(mask, 0, i), pixel_at(mask, mask.width() - 1, i)})
                EXPECT_EQ(seen, pixel_at(mask, 0, 0)) << entry.path();
    }
}
