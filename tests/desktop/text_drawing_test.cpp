#include "desktop/text_drawing.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

bitmap drawn_in(double points, const char * text)
{
    return drawn_text({.text = text,
                       .font = {.name = "DejaVu Sans", .size = points},
                       .color = {.red = 255, .green = 255, .blue = 255},
                       .background = {},
                       .extra_width = 50});
}

}  // namespace

TEST(drawn_text, is_the_same_whatever_sizes_were_drawn_before)
{
    const bitmap first = drawn_in(100, "Summer");
    for (const double points : {9.0, 10.0, 12.0, 16.5, 18.0, 75.0}) {
        drawn_in(points, "Type a caption here");
        EXPECT_TRUE(same(drawn_in(100, "Summer"), first)) << points;
    }
}
