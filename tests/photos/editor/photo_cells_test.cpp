#include "photos/editor/photo_cells.h"

#include <gtest/gtest.h>

TEST(photo_cells, portrait_and_landscape_stand_in_their_cell_each_in_its_way)
{
    EXPECT_EQ(cell_place(0, orientation::portrait), (box{16, 16, 51, 68}));
    EXPECT_EQ(cell_place(0, orientation::landscape), (box{8, 24, 68, 51}));
    EXPECT_EQ(cell_place(59, orientation::portrait), (box{9 * 72 + 16, 5 * 80 + 16, 51, 68}));
    EXPECT_EQ(cell_place(12, orientation::landscape), (box{2 * 72 + 8, 80 + 24, 68, 51}));
}

TEST(photo_cells, a_cell_is_portrait_when_it_is_higher_than_wide)
{
    EXPECT_EQ(cell_shape({0, 0, 51, 68}), orientation::portrait);
    EXPECT_EQ(cell_shape({0, 0, 68, 51}), orientation::landscape);
}

TEST(photo_cells, a_point_gives_its_column_by_72_and_its_row_by_80)
{
    EXPECT_EQ(cell_at(0, 0), 0);
    EXPECT_EQ(cell_at(71, 79), 0);
    EXPECT_EQ(cell_at(72, 79), 1);
    EXPECT_EQ(cell_at(71, 80), 10);
    EXPECT_EQ(cell_at(719, 479), 59);
}

TEST(photo_cells, the_last_column_and_row_reach_to_the_edge_and_nothing_beyond)
{
    EXPECT_EQ(cell_at(731, 0), 9) << "not the first cell of the next row";
    EXPECT_EQ(cell_at(731, 491), 59);
    EXPECT_EQ(cell_at(732, 0), std::nullopt);
    EXPECT_EQ(cell_at(0, 492), std::nullopt);
    EXPECT_EQ(cell_at(-1, 5), std::nullopt);
    EXPECT_EQ(cell_at(5, -1), std::nullopt);
}

TEST(photo_cells, the_middle_of_every_picture_lies_in_its_cell)
{
    for (int cell = 0; cell < 60; ++cell)
        for (const orientation shape : {orientation::portrait, orientation::landscape}) {
            const box place = cell_place(cell, shape);
            EXPECT_EQ(cell_at(place.left + place.width / 2, place.top + place.height / 2), cell);
        }
}

TEST(photo_cells, arrow_keys_stop_at_the_edges)
{
    EXPECT_EQ(cell_beside(11, picture_key::left), 10);
    EXPECT_EQ(cell_beside(10, picture_key::left), std::nullopt);
    EXPECT_EQ(cell_beside(18, picture_key::right), 19);
    EXPECT_EQ(cell_beside(19, picture_key::right), std::nullopt);
    EXPECT_EQ(cell_beside(15, picture_key::up), 5);
    EXPECT_EQ(cell_beside(5, picture_key::up), std::nullopt);
    EXPECT_EQ(cell_beside(49, picture_key::down), 59);
    EXPECT_EQ(cell_beside(50, picture_key::down), std::nullopt);
    EXPECT_EQ(cell_beside(50, picture_key::remove), std::nullopt);
}
