#include "engine/output/shown_size.h"

#include <gtest/gtest.h>

namespace {

std::string text(picture_size size)
{
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

constexpr picture_size large_screen{.width = 1728, .height = 972}, small_screen{.width = 720, .height = 540};

}  // namespace

TEST(shown_size, landscapes_and_squares_have_sizes_of_their_own)
{
    EXPECT_EQ(text(shown_size_of({3000, 2000}, large_screen).picture), "840x560");
    EXPECT_EQ(text(shown_size_of({2000, 1500}, large_screen).picture), "748x561");
    EXPECT_EQ(text(shown_size_of({2000, 1501}, large_screen).picture), "840x630");
    EXPECT_EQ(text(shown_size_of({2000, 2000}, large_screen).picture), "560x560");
}

TEST(shown_size, a_portrait_is_seen_whole_where_the_screen_allows)
{
    const shown_size on_large = shown_size_of({2000, 3000}, large_screen);
    EXPECT_EQ(on_large.window.height, large_screen.height);
    EXPECT_LT(on_large.picture.height, on_large.scroll.height);
    EXPECT_NEAR(on_large.picture.height, on_large.picture.width * 1.5, 1);
}

TEST(shown_size, a_portrait_is_scrolled_rather_than_shown_tiny)
{
    const shown_size on_small = shown_size_of({2000, 3000}, small_screen);
    EXPECT_EQ(text(on_small.picture), "480x720");
    EXPECT_LT(on_small.scroll.height, on_small.picture.height);
}

TEST(shown_size, a_portrait_is_never_scrolled_sideways)
{
    const shown_size sizes = shown_size_of({2000, 3000}, {360, 360});
    EXPECT_LT(sizes.picture.width, sizes.scroll.width);
}

TEST(shown_size, no_window_leaves_the_screen)
{
    for (const picture_size own :
         {picture_size{3000, 2000}, picture_size{2000, 1500}, picture_size{2000, 2000},
          picture_size{2000, 3000}, picture_size{1, 2000}, picture_size{2000, 1}})
        for (const picture_size room : {large_screen, small_screen}) {
            const shown_size sizes = shown_size_of(own, room);
            EXPECT_LE(sizes.window.width, room.width) << text(own);
            EXPECT_LE(sizes.window.height, room.height) << text(own);
        }
}
