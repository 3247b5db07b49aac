#include "photos/photo_orientation.h"

#include <gtest/gtest.h>

TEST(photo_orientation, a_square_photo_is_landscape)
{
    EXPECT_EQ(counted_orientation(picture_size{.width = 200, .height = 200}), orientation::landscape);
    EXPECT_EQ(counted_orientation(picture_size{.width = 200, .height = 201}), orientation::portrait);
    EXPECT_EQ(counted_orientation(picture_size{.width = 201, .height = 200}), orientation::landscape);
    EXPECT_EQ(counted_orientation(std::nullopt), std::nullopt);
}

TEST(photo_orientation, a_photo_that_is_not_loadable_counts_as_neither)
{
    orientation_counts counts;
    for (const std::optional<orientation> shape :
         {std::optional(orientation::portrait), std::optional<orientation>(),
          std::optional(orientation::landscape), std::optional(orientation::portrait)})
        add_photo(counts, shape);
    EXPECT_EQ(counts.landscape, 1);
    EXPECT_EQ(counts.portrait, 2);
    EXPECT_EQ(counts.list, "p:l:p:");
}
