#include "batch/page_plan.h"

#include "batch/page_ground.h"
#include "batch/pdf_file.h"
#include "batch/tiff_file.h"
#include "support/color_profile.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr picture_size upright_poster{.width = 2000, .height = 3000},
    lying_poster{.width = 3000, .height = 2000}, square_poster{.width = 2000, .height = 2000};

// In whole points.
std::string page_points(const page_plan & plan)
{
    const auto whole = [](double value) { return std::to_string(std::lround(value)); };
    return whole(plan.width) + "x" + whole(plan.height) + ": " + whole(plan.poster_width) + "x" +
           whole(plan.poster_height) + " at " + whole(plan.left) + "," + whole(plan.bottom);
}

batch_arguments page_asked(const std::string & page, const std::string & around = {},
                           std::optional<int> bleed = std::nullopt)
{
    batch_arguments arguments;
    arguments.page = page;
    arguments.around = around;
    arguments.bleed = bleed;
    return arguments;
}

page_plan page_on(const std::string & page, picture_size poster, int bleed = 0)
{
    return planned_page(page, bleed, poster, 100);
}

bool is_page_refused(const std::string & page)
{
    try {
        parse_arguments({"--page", page});
    } catch (const bad_arguments & fault) {
        return fault.what == "--page is " + std::string(page_sizes) + ", not \"" + page + "\"";
    }
    return false;
}

}  // namespace

TEST(page_plan, a_poster_lies_whole_in_the_middle_of_its_page)
{
    EXPECT_EQ(page_points(page_on("A4", upright_poster)), "595x842: 561x842 at 17,0");
    EXPECT_EQ(page_points(page_on("A4", lying_poster)), "842x595: 842x561 at 0,17");
    EXPECT_EQ(page_points(page_on("A4", square_poster)), "595x842: 595x595 at 0,123");
    EXPECT_EQ(page_points(page_on("a3", upright_poster)), "842x1191: 794x1191 at 24,0");
    EXPECT_EQ(page_points(page_on("Letter", upright_poster)), "612x792: 528x792 at 42,0");
    EXPECT_EQ(page_points(page_on("20x30", upright_poster)), "567x850: 567x850 at 0,0");
    EXPECT_EQ(page_points(page_on("30x20", upright_poster)), "567x850: 567x850 at 0,0");
    EXPECT_EQ(page_points(page_on("40x60cm", lying_poster)), "1701x1134: 1701x1134 at 0,0");
    EXPECT_EQ(page_points(page_on("50X75", upright_poster)), "1417x2126: 1417x2126 at 0,0");
    EXPECT_EQ(page_points(page_on("8x10in", upright_poster)), "576x720: 480x720 at 48,0");
    EXPECT_EQ(page_points(page_on("8.5x11in", upright_poster)),
              page_points(page_on("Letter", upright_poster)));
}

TEST(page_plan, without_a_name_the_page_is_the_poster)
{
    EXPECT_EQ(page_points(page_on("", upright_poster)), "1440x2160: 1440x2160 at 0,0");  // 20 by 30 inches
    EXPECT_EQ(page_points(planned_page("", 0, lying_poster, 300)), "720x480: 720x480 at 0,0");
    EXPECT_TRUE(page_on("", upright_poster).is_covered());
    EXPECT_TRUE(page_on("20x30", upright_poster).is_covered());
    EXPECT_FALSE(page_on("A4", upright_poster).is_covered());
}

TEST(page_plan, a_bleed_grows_the_sheet_and_nothing_else)
{
    const page_plan plan = page_on("30x45", upright_poster, 5), without = page_on("30x45", upright_poster);
    const double five_millimetres = 5 * 72 / 25.4;
    EXPECT_DOUBLE_EQ(plan.whole_width(), without.width + 2 * five_millimetres);
    EXPECT_DOUBLE_EQ(plan.whole_height(), without.height + 2 * five_millimetres);
    EXPECT_EQ(plan.poster_width, without.poster_width);
    EXPECT_DOUBLE_EQ(plan.left, without.left + five_millimetres);
    EXPECT_DOUBLE_EQ(plan.bottom, without.bottom + five_millimetres);
    EXPECT_FALSE(plan.is_covered());
}

TEST(page_plan, a_name_that_is_no_size_is_refused_with_those_that_are)
{
    for (const char * name :
         {"A4", "a3", "LETTER", "legal", "tabloid", "20x30", "12x18in", "5x500", "12.5x20cm"})
        EXPECT_TRUE(is_page_size(name)) << name;
    for (const char * name : {"", "A", "A44", "20", "x", "20x", "x30", "20x30mm", "4x30", "20x501", "-20x30",
                              "20x30x40", "nanxnan", "1e1x20", "infxinf", "20 x 30", "1x8in"})
        EXPECT_TRUE(is_page_refused(name)) << name;
}

TEST(page_ground, goes_on_where_a_bleed_or_the_caller_asks_for_it)
{
    EXPECT_FALSE(is_own_ground_wanted({}));
    EXPECT_FALSE(is_own_ground_wanted(page_asked({}, {}, 0)));
    EXPECT_TRUE(is_own_ground_wanted(page_asked({}, {}, 3)));
    EXPECT_FALSE(is_own_ground_wanted(page_asked({}, "white", 3)));
    EXPECT_TRUE(is_own_ground_wanted(page_asked({}, "ground")));
}

TEST(page_ground, is_mirrored_at_each_edge)
{
    bitmap image(3, 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            set_pixel(image, x, y, {static_cast<std::uint8_t>(10 * y + x), 0, 0});
    const bitmap whole = mirrored_around(image, {.width = 10, .height = 6}, 2, 1);
    const auto rows = [&](int y) {
        std::vector<int> reds;
        for (const pixel & each : whole.row(y))
            reds.push_back(each.red);
        return reds;
    };
    EXPECT_EQ(rows(0), (std::vector<int>{1, 0, 0, 1, 2, 2, 1, 0, 0, 1}));
    EXPECT_EQ(rows(1), rows(0));
    EXPECT_EQ(rows(2), (std::vector<int>{11, 10, 10, 11, 12, 12, 11, 10, 10, 11}));
    EXPECT_EQ(rows(3), rows(2));
    EXPECT_EQ(rows(4), rows(0));
    EXPECT_FALSE(mirrored_around({}, {.width = 10, .height = 6}, 2, 1));
}

TEST(pdf_file, holds_the_bytes_of_the_jpeg_and_is_the_same_each_time)
{
    const std::string jpeg = jpeg_bytes(noise(40, 60));
    const page_picture poster{.jpeg = jpeg, .size = {.width = 40, .height = 60}};
    const std::string pdf = pdf_bytes(page_on("A4", upright_poster, 3), poster, {});
    EXPECT_NE(pdf.find(jpeg), std::string::npos);
    EXPECT_TRUE(pdf.starts_with("%PDF-1.6"));
    EXPECT_EQ(pdf.find("CreationDate"), std::string::npos);
    EXPECT_TRUE(pdf == pdf_bytes(page_on("A4", upright_poster, 3), poster, {}));
    EXPECT_TRUE(pdf != pdf_bytes(page_on("A4", upright_poster, 3), poster, {.color = {1, 2, 3}}));
}

TEST(tiff_file, has_every_pixel_as_it_is)
{
    const temporary_folder place;
    for (const bitmap & image : {noise(203, 101), plain(1, 1, {7, 8, 9})}) {
        const std::string bytes =
            tiff_bytes(image, {.dpi = 300, .color_profile = srgb_profile(), .made_with = "Tessaloom"});
        EXPECT_TRUE(same(load_picture(picture_format::tiff, place.write("a.tif", bytes)), image));
    }
    EXPECT_THROW(tiff_bytes({}, {}), platform_error);
}
