#include "designs/templates/location_line.h"

#include "tests/raised_by.h"

#include <gtest/gtest.h>

namespace {

int number_raised_by(std::string_view line)
{
    return raised_by([&] { parse_location(line); });
}

}  // namespace

TEST(location_line, has_top_before_left_and_height_before_width)
{
    EXPECT_EQ(parse_location("100:200:300:400:-15:7:-1:3:"), (location{.top = 100,
                                                                       .left = 200,
                                                                       .height = 300,
                                                                       .width = 400,
                                                                       .rotation = -15,
                                                                       .frame = 7,
                                                                       .shadow = -1,
                                                                       .spare = 3}));
}

TEST(location_line, without_a_file_takes_the_next_photo)
{
    EXPECT_EQ(parse_location("100:200:300:400:0:-1:-1:0:")->file, "");
    EXPECT_EQ(parse_location("100:200:300:400:0:-1:-1:0:images/a.jpg")->file, "images/a.jpg");
}

TEST(location_line, keeps_colons_of_the_file_name)
{
    EXPECT_EQ(parse_location("1:2:3:4:0:-1:-1:0:user_images/10:30:.jpg")->file, "user_images/10:30:.jpg");
}

TEST(location_line, rounds_to_nearest_and_halves_to_even)
{
    const std::optional<location> place = parse_location("2.5:3.5:12.5:-2.5:-1:-1.5:0.5:1.51:");
    EXPECT_EQ(place, (location{.top = 2,
                               .left = 4,
                               .height = 12,
                               .width = -2,
                               .rotation = -1,
                               .frame = -2,
                               .shadow = 0,
                               .spare = 2}));
}

TEST(location_line, reads_the_number_that_a_field_begins_with)
{
    const std::optional<location> place = parse_location("007:x:12px: 4:0abc::-01:1e2:");
    EXPECT_EQ(place, (location{.top = 7,
                               .left = 0,
                               .height = 12,
                               .width = 4,
                               .rotation = 0,
                               .frame = 0,
                               .shadow = -1,
                               .spare = 100}));
}

TEST(location_line, an_empty_fifth_field_ends_the_template)
{
    EXPECT_FALSE(parse_location("1:2:3:4::-1:-1:0:"));
    EXPECT_FALSE(parse_location("1:2:3:4:"));
}

TEST(location_line, a_missing_field_is_a_subscript_error)
{
    EXPECT_EQ(number_raised_by("1:2:3:4"), 9);
    EXPECT_EQ(number_raised_by(""), 9);
    EXPECT_EQ(number_raised_by("1:2:3:4:0"), 9);
    EXPECT_EQ(number_raised_by("1:2:3:4:0:-1:-1:0"), 9);
}

TEST(location_line, a_number_beyond_16_bits_overflows)
{
    EXPECT_EQ(number_raised_by("32767:-32768:3:4:0:-1:-1:0:"), 0);
    EXPECT_EQ(number_raised_by("32768:2:3:4:0:-1:-1:0:"), 6);
    EXPECT_EQ(number_raised_by("1:-32769:3:4:0:-1:-1:0:"), 6);
    EXPECT_EQ(number_raised_by("1:2:99999999999999999999:4:0:-1:-1:0:"), 6);
    EXPECT_EQ(number_raised_by("1:2:3:4:0:-1:-1:1e999:"), 6);
}

TEST(location_line, soft_edges_enlarge_a_location_by_twenty_on_each_side)
{
    EXPECT_EQ(softened({.top = 100, .left = 100, .height = 200, .width = 200, .file = "a"}),
              (location{.top = 80, .left = 80, .height = 240, .width = 240, .file = "a"}));
    EXPECT_THROW(softened({.top = -32750}), platform_error);
}

TEST(location_text, is_what_parse_location_reads)
{
    const location place{.top = -5,
                         .left = 40,
                         .height = 0,
                         .width = 300,
                         .rotation = -10,
                         .frame = 7,
                         .shadow = 0,
                         .spare = 3,
                         .file = "a:b.gif"};
    EXPECT_EQ(location_text(place), "-5:40:0:300:-10:7:0:3:a:b.gif");
    EXPECT_EQ(parse_location(location_text(place)), place);
    EXPECT_EQ(parse_location(location_text(place, {.place = 2, .rotation = 2})), place);
}

TEST(location_text, fills_up_to_the_digits_asked_for_behind_the_sign)
{
    const location place{.top = -5, .left = 4, .height = 123, .width = 30, .rotation = 5};
    EXPECT_EQ(location_text(place, {.place = 2}), "-05:04:123:30:5:-1:-1:0:");
    EXPECT_EQ(location_text(place, {.place = 2, .rotation = 2}), "-05:04:123:30:05:-1:-1:0:");
}

TEST(template_lines, are_one_a_location)
{
    EXPECT_EQ(template_lines({{.top = 1}, {.top = 2, .file = "x"}}, {}),
              (std::vector<std::string>{"1:0:0:0:0:-1:-1:0:", "2:0:0:0:0:-1:-1:0:x"}));
    EXPECT_TRUE(template_lines({}).empty());
}
