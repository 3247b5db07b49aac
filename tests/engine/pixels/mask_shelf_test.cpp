#include "engine/pixels/mask_shelf.h"

#include <gtest/gtest.h>

namespace {

mask_key key_of(const std::string & path, int size, std::int64_t changed = 1)
{
    return {.path = path, .stamp = {.changed = changed, .bytes = 10}, .size = size};
}

}  // namespace

TEST(mask_shelf, finds_a_mask_by_file_state_and_size)
{
    mask_shelf shelf;
    EXPECT_EQ(shelf.find(key_of("a", 3)), nullptr);
    shelf.keep(key_of("a", 3), bitmap(3, 3));
    shelf.keep(key_of("a", 4), bitmap(4, 4));
    ASSERT_NE(shelf.find(key_of("a", 3)), nullptr);
    EXPECT_EQ(shelf.find(key_of("a", 3))->width(), 3);
    EXPECT_EQ(shelf.find(key_of("a", 4))->width(), 4);
    EXPECT_EQ(shelf.find(key_of("b", 3)), nullptr);
    EXPECT_EQ(shelf.find(key_of("a", as_loaded)), nullptr);
    EXPECT_EQ(shelf.find(key_of("a", 3, 2)), nullptr);
}

TEST(mask_shelf, a_mask_that_could_not_be_loaded_is_kept_too)
{
    mask_shelf shelf;
    shelf.keep(key_of("a", as_loaded), {});
    ASSERT_NE(shelf.find(key_of("a", as_loaded)), nullptr);
    EXPECT_FALSE(*shelf.find(key_of("a", as_loaded)));
}

TEST(mask_shelf, the_mask_unused_for_longest_makes_room)
{
    constexpr int third = 1900;  // a square that takes a little less than a third of the room
    static_assert(3 * third * third * static_cast<int>(sizeof(pixel)) < mask_shelf::room);
    static_assert(4 * third * third * static_cast<int>(sizeof(pixel)) > mask_shelf::room);
    mask_shelf shelf;
    for (int size = 1; size <= 3; ++size)
        shelf.keep(key_of("a", size), bitmap(third, third));
    EXPECT_NE(shelf.find(key_of("a", 1)), nullptr);  // used again, so 2 is the oldest now
    shelf.keep(key_of("b", 1), bitmap(third, third));
    EXPECT_NE(shelf.find(key_of("a", 1)), nullptr);
    EXPECT_EQ(shelf.find(key_of("a", 2)), nullptr);
    EXPECT_NE(shelf.find(key_of("a", 3)), nullptr);
}

TEST(mask_shelf, small_masks_are_many)
{
    mask_shelf shelf;
    for (int size = 1; size <= 100; ++size)
        shelf.keep(key_of("a", size), bitmap(100, 100));
    EXPECT_NE(shelf.find(key_of("a", 1)), nullptr);
}
