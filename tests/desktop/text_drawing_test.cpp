#include "desktop/text_drawing.h"

#include "tests/pictures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

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

// The window of the fonts passes over the first: that is to be none that the user has nothing else for.
TEST(installed_fonts, begin_with_names_that_stand_for_others)
{
    const std::vector<std::string> names = installed_fonts(), stand_ins{"Monospace", "Sans Serif", "Serif"};
    ASSERT_GE(names.size(), 4u);
    EXPECT_EQ(std::vector<std::string>(names.begin(), names.begin() + 3), stand_ins);
    EXPECT_NE(std::find(names.begin() + 3, names.end(), "DejaVu Sans"), names.end());
    for (const std::string & each : stand_ins)
        EXPECT_EQ(std::ranges::count(names, each), 1) << each;
}
