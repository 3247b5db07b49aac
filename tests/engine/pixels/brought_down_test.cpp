#include "engine/pixels/brought_down.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

TEST(brought_down, takes_the_mean_of_each_square_and_rounds_half_up)
{
    const bitmap image = colored(4, 2, [](int x, int y) {
        const auto level = static_cast<std::uint8_t>(x < 2 ? 10 * (x + 2 * y) : 200 + (x == 3 && y == 1) * 2);
        return rgb_triple{level, 7, 255};
    });
    const bitmap down = brought_down(image, {.left = 0, .top = 0, .width = 4, .height = 2}, 2);
    ASSERT_EQ(down.width(), 2);
    ASSERT_EQ(down.height(), 1);
    EXPECT_EQ(seen(down, 0, 0), (rgb_triple{15, 7, 255}));
    EXPECT_EQ(seen(down, 1, 0), (rgb_triple{201, 7, 255}));  // 200.5
}

TEST(brought_down, takes_the_part_as_it_counts_from_the_top)
{
    const bitmap image = graded(40, 30);
    const rectangle part{.left = 6, .top = 4, .width = 20, .height = 10};
    const bitmap copy = brought_down(image, part, 1);
    EXPECT_TRUE(same(copy, copied(image, 6, 4, 26, 14)));
    EXPECT_TRUE(same(brought_down(image, part, 2),
                     brought_down(copy, {.left = 0, .top = 0, .width = 20, .height = 10}, 2)));
}
