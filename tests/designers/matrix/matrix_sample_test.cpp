#include "designers/matrix/matrix_sample.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

using pieces = std::vector<sample_piece>;

constexpr poster_borders usual{.top = 100, .bottom = 100, .left = 100, .right = 100};

// "." for bare paper, "#" for anything else.
std::string chart(const matrix_choices & choices, int divisor)
{
    return drawn(drawn_sample(choices, divisor), [](rgb_triple color) {
        return color == rgb_triple{255, 255, 255} ? '.' : '#';
    });
}

std::string repeated(int times, const std::string & line)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += line + "\n";
    return text;
}

}  // namespace

TEST(matrix_sample, shows_the_cells_where_the_template_puts_them)
{
    EXPECT_EQ(sample_pieces({}),
              (pieces{{.area = {.left = 100, .top = 100, .width = 890, .height = 1390}},
                      {.area = {.left = 1010, .top = 100, .width = 890, .height = 1390}},
                      {.area = {.left = 100, .top = 1510, .width = 890, .height = 1390}},
                      {.area = {.left = 1010, .top = 1510, .width = 890, .height = 1390}}}));
}

TEST(matrix_sample, is_drawn_to_scale)
{
    const matrix_choices upright{.rows = 1, .columns = 2, .borders = usual, .gap_h = 200};
    EXPECT_EQ(chart(upright, 100), repeated(1, "....................") +
                                       repeated(28, ".########..########.") +
                                       repeated(1, "...................."));
    const matrix_choices lying{
        .rows = 2, .columns = 1, .borders = usual, .gap_v = 200, .poster = poster_shape::landscape};
    EXPECT_EQ(chart(lying, 100),
              repeated(1, std::string(30, '.')) + repeated(8, "." + std::string(28, '#') + ".") +
                  repeated(2, std::string(30, '.')) + repeated(8, "." + std::string(28, '#') + ".") +
                  repeated(1, std::string(30, '.')));
}

TEST(matrix_sample, of_both_orientations_has_single_and_double_cells)
{
    const pieces all = sample_pieces({.rows = 2, .columns = 4, .photos = matrix_photos::both});
    std::vector<int> widths;
    for (const sample_piece & piece : all)
        widths.push_back(piece.area.width);
    EXPECT_EQ(widths, (std::vector<int>{435, 890, 435, 890, 435, 435}));
    EXPECT_EQ(all[2].area.left, 1465);
}

TEST(matrix_sample, a_single_column_has_no_double_cells)
{
    for (const sample_piece & piece : sample_pieces({.rows = 4, .columns = 1, .photos = matrix_photos::both}))
        EXPECT_EQ(piece.area.width, 1800);
}

TEST(matrix_sample, shows_frames_below_their_photos)
{
    const matrix_choices choices{
        .rows = 3, .columns = 2, .frames = worn_frames{.set = "club", .captions = 1}};
    const pieces all = sample_pieces(choices);
    ASSERT_EQ(all.size(), 12U);
    EXPECT_EQ(all[2], (sample_piece{.kind = sample_kind::frame,
                                    .area = {.left = 1293, .top = 100, .width = 607, .height = 920}}));
    EXPECT_EQ(all[3], (sample_piece{.area = {.left = 1329, .top = 137, .width = 540, .height = 727}}));
}

TEST(matrix_sample, shakes_as_the_collage_does)
{
    // The first row of the table: -5 degrees, 3 fiftieths up and to the left, and no cell of the rim grows.
    const pieces turned = sample_pieces({.rows = 1, .columns = 1, .rotate = true, .resize = true});
    EXPECT_EQ(turned,
              (pieces{{.area = {.left = -68, .top = -68, .width = 1800, .height = 2800}, .rotation = -5}}));
}

TEST(matrix_sample, a_turned_photo_swings_about_its_corner)
{
    const matrix_choices choices{.rows = 1,
                                 .columns = 1,
                                 .borders = {.top = 900, .bottom = 900, .left = 700, .right = 700},
                                 .rotate = true};
    const sample_piece photo = sample_pieces(choices).front();
    ASSERT_EQ(photo.rotation, -5);
    const bitmap sample = drawn_sample(choices, 10);
    const auto is_paper = [&](int x, int y) {
        return seen(sample, x / 10, y / 10) == rgb_triple{255, 255, 255};
    };
    // Counter-clockwise: the top right corner rises, the bottom left one moves right.
    const int right = photo.area.left + photo.area.width - 40, bottom = photo.area.top + photo.area.height;
    EXPECT_TRUE(is_paper(photo.area.left + 20, photo.area.top - 20));
    EXPECT_FALSE(is_paper(right, photo.area.top - 20));
    EXPECT_TRUE(is_paper(photo.area.left + 40, bottom - 80));
    EXPECT_FALSE(is_paper(photo.area.left + 140, bottom - 80));
}

TEST(matrix_sample, of_an_impossible_matrix_is_a_bare_sheet)
{
    for (const matrix_choices & choices : {matrix_choices{.rows = 0}, matrix_choices{.columns = 9999},
                                           matrix_choices{.gap_v = -9999, .gap_h = 9999}}) {
        EXPECT_TRUE(sample_pieces(choices).empty());
        EXPECT_EQ(chart(choices, 100), repeated(30, std::string(20, '.')));
    }
}
