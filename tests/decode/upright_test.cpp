#include "decode/upright.h"

#include <gtest/gtest.h>

namespace {

// Two columns, three rows: 1 2 / 3 4 / 5 6.
samples numbered(int orientation)
{
    return {.size = {.width = 2, .height = 3},
            .model = sample_model::grey,
            .values = {1, 2, 3, 4, 5, 6},
            .orientation = orientation,
            .taken = "then"};
}

using bytes = std::vector<std::uint8_t>;

}  // namespace

TEST(upright, turns_and_flips_by_each_orientation)
{
    EXPECT_EQ(upright(numbered(1)).values, (bytes{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(upright(numbered(2)).values, (bytes{2, 1, 4, 3, 6, 5}));
    EXPECT_EQ(upright(numbered(3)).values, (bytes{6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(upright(numbered(4)).values, (bytes{5, 6, 3, 4, 1, 2}));
    EXPECT_EQ(upright(numbered(5)).values, (bytes{1, 3, 5, 2, 4, 6}));
    EXPECT_EQ(upright(numbered(6)).values, (bytes{5, 3, 1, 6, 4, 2}));
    EXPECT_EQ(upright(numbered(7)).values, (bytes{6, 4, 2, 5, 3, 1}));
    EXPECT_EQ(upright(numbered(8)).values, (bytes{2, 4, 6, 1, 3, 5}));
}

TEST(upright, says_what_it_has_become)
{
    const samples turned = upright(numbered(6));
    EXPECT_EQ(turned.size, (picture_size{.width = 3, .height = 2}));
    EXPECT_EQ(turned.orientation, 1);
    EXPECT_EQ(turned.taken, "then");
}

TEST(on_white, lays_by_the_alpha_in_8_and_16_bits)
{
    EXPECT_EQ(on_white({.size = {.width = 3, .height = 1},
                        .model = sample_model::grey_alpha,
                        .values = {10, 0, 10, 255, 0, 51}})
                  .values,
              (bytes{255, 10, 204}));
    samples wide = made_samples({.width = 1, .height = 1}, sample_model::rgb_alpha, 2);
    EXPECT_EQ(on_white(wide).values, (bytes{255, 255, 255, 255, 255, 255}));
    EXPECT_EQ(on_white(wide).model, sample_model::rgb);
}

TEST(samples, are_refused_beyond_what_a_collage_takes)
{
    EXPECT_THROW(expect_usable(60'000, 60'000), decode_fault);
    EXPECT_THROW(expect_usable(32'768, 1), decode_fault);
    EXPECT_THROW(expect_usable(20'000, 20'000), decode_fault);
    EXPECT_THROW(expect_usable(0, 5), decode_fault);
    EXPECT_NO_THROW(expect_usable(16'320, 12'240));
    EXPECT_NO_THROW(expect_usable(32'767, 100));
}
