#include "engine/pixels/turned_pixels.h"

#include "tests/pictures.h"

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>

namespace {

constexpr int turned_width = 60, turned_height = 50;

fine_spot spot_of(double column, double line)
{
    return {.column = std::llround(std::ldexp(column, place_bits)),
            .line = std::llround(std::ldexp(line, place_bits))};
}

/// What lies along a line of that many pixels from `start` on, at that angle, on a canvas of noise.
bitmap put_along(const turned_source & source, int pixels, double radians, arithmetic way)
{
    bitmap canvas = noise(40, 3);
    put_turned(source,
               {.into = canvas.row(1).subspan(1, static_cast<std::size_t>(pixels)),
                .start = spot_of(20.3, 20.8),
                .step = spot_of(std::cos(radians), std::sin(radians))},
               way);
    return canvas;
}

}  // namespace

TEST(turned_pixels, are_the_same_the_best_way_of_this_machine_and_one_by_one)
{
    const bitmap colors = noise(turned_width, turned_height),
                 graded_cover = graded(turned_width, turned_height),
                 noisy_cover = noise(turned_width, turned_height);
    bitmap islands(turned_width, turned_height);
    for (int i = 0; i < 20; ++i)
        paste(islands, plain(3, 3, {255, 255, 255}), 7 * (i % 5) + 12, 9 * (i / 5) + 5, plain_copy);
    const rectangle filled{.left = 12, .top = 15, .width = 20, .height = 11};
    std::vector<turned_source> sources{{.colors = rows_from_top(colors), .covers = {}, .filled = filled}};
    for (const bitmap * cover : std::initializer_list<const bitmap *>{&graded_cover, &noisy_cover, &islands})
        sources.push_back({.colors = rows_from_top(colors), .covers = rows_from_top(*cover), .filled = {}});
    for (const turned_source & source : sources)
        for (const int pixels : {0, 1, 2, 17, 18})
            for (int step = 0; step < 63; ++step) {
                const double radians = step / 10.0;
                EXPECT_TRUE(same(put_along(source, pixels, radians, best_arithmetic()),
                                 put_along(source, pixels, radians, arithmetic::one_by_one)))
                    << pixels << " pixels at " << radians;
            }
}

TEST(turned_pixels, what_is_not_covered_stays)
{
    const bitmap colors = noise(turned_width, turned_height), nothing(turned_width, turned_height);
    for (const arithmetic way : {best_arithmetic(), arithmetic::one_by_one})
        EXPECT_TRUE(
            same(put_along({.colors = rows_from_top(colors), .covers = rows_from_top(nothing), .filled = {}},
                           17, 0.3, way),
                 noise(40, 3)));
}

TEST(turned_pixels, of_one_colour_wholly_covered_have_that_colour)
{
    const bitmap colors = plain(turned_width, turned_height, {1, 200, 255}),
                 cover = plain(turned_width, turned_height, {255, 255, 255});
    for (const arithmetic way : {best_arithmetic(), arithmetic::one_by_one}) {
        const bitmap canvas = put_along(
            {.colors = rows_from_top(colors), .covers = rows_from_top(cover), .filled = {}}, 17, 0.3, way);
        for (int x = 1; x < 18; ++x)
            EXPECT_EQ(seen(canvas, x, 1), (rgb_triple{1, 200, 255}));
        EXPECT_EQ(seen(canvas, 18, 1), seen(noise(40, 3), 18, 1));
    }
}
