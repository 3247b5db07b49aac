#include "designs/browser/browser_page.h"

#include <gtest/gtest.h>

TEST(design_passes_family, all_passes_every_family_but_no_template_of_the_program)
{
    EXPECT_TRUE(design_passes_family({.design = "Frame"}, design_family::all));
    EXPECT_TRUE(design_passes_family({.file = "saved600"}, design_family::all));
    for (const char * own : {"__matrix", "__match", "__quick"})
        EXPECT_FALSE(design_passes_family({.file = own}, design_family::all)) << own;
    EXPECT_TRUE(design_passes_family({.file = "__frames"}, design_family::all));
}

TEST(design_passes_family, each_option_passes_its_own_family)
{
    struct row {
        design_family family;
        const char * design;
    };
    constexpr row rows[] = {{design_family::scatter, "Scatter"},
                            {design_family::block, "Block"},
                            {design_family::theme, "Theme"},
                            {design_family::saved, "Saved"},
                            {design_family::frame, "Frame"}};
    for (const row & option : rows)
        for (const row & other : rows)
            EXPECT_EQ(design_passes_family({.design = other.design}, option.family), &option == &other)
                << option.design << " shows " << other.design;
    EXPECT_FALSE(design_passes_family({.file = "__quick", .design = "Block"}, design_family::block));
    EXPECT_FALSE(design_passes_family({.design = "block"}, design_family::block));
}

TEST(browser_page, the_names_of_the_program_are_not_offered)
{
    for (const char * own : {"Quick matrix", "Frame_matrix", "Lettering", "Puzzle"})
        EXPECT_FALSE(is_offered(own)) << own;
    EXPECT_TRUE(is_offered("quick matrix"));
    EXPECT_TRUE(is_offered("Match"));
}

TEST(browser_page, another_ratio_fits_only_where_it_may_be_distorted_to_3x4)
{
    EXPECT_TRUE(fits_ratio({.ratio = "2x3"}, "2x3"));
    EXPECT_FALSE(fits_ratio({.ratio = "3x4"}, "2x3"));
    EXPECT_FALSE(fits_ratio({.ratio = "3x4", .distort = "Yes"}, "2x3"));
    EXPECT_TRUE(fits_ratio({.ratio = "2x3", .distort = "Yes"}, "3x4"));
    EXPECT_FALSE(fits_ratio({.ratio = "2x3"}, "3x4"));
}

TEST(browser_page, a_design_that_may_not_be_turned_fits_its_own_orientation_alone)
{
    const design_record landscape{.background = "Landscape", .turn_bg = "No"};
    EXPECT_FALSE(fits_orientation(landscape, orientation::portrait));
    EXPECT_TRUE(fits_orientation(landscape, orientation::landscape));
    EXPECT_TRUE(fits_orientation({.background = "Landscape", .turn_bg = "Yes"}, orientation::portrait));
    EXPECT_FALSE(fits_orientation({.background = "Both", .turn_bg = "No"}, orientation::landscape));
}

TEST(count_label, a_count_of_one_digit_gets_a_leading_blank)
{
    EXPECT_EQ(count_label("7"), " 7 images");
    EXPECT_EQ(count_label("12"), "12 images");
    EXPECT_EQ(count_label(""), "");
}

TEST(browser_page, fourteen_designs_make_a_page_and_more_make_another)
{
    EXPECT_EQ(page_of(0, 0), (browser_page{0, false}));
    EXPECT_EQ(page_of(13, 0), (browser_page{13, false}));
    EXPECT_EQ(page_of(14, 0), (browser_page{14, false}));
    EXPECT_EQ(page_of(15, 0), (browser_page{14, true}));
    EXPECT_EQ(page_of(20, 14), (browser_page{6, false}));
    EXPECT_EQ(page_of(28, 14), (browser_page{14, false}));
    EXPECT_EQ(page_of(5, 14), (browser_page{0, false}));
}

TEST(browser_page, the_page_before_lies_two_pages_before_the_next_one_or_one_before_the_last)
{
    EXPECT_EQ(start_of_page_before(28, true), 0);
    EXPECT_EQ(start_of_page_before(42, true), 14);
    EXPECT_EQ(start_of_page_before(14, false), 0);
    EXPECT_EQ(start_of_page_before(28, false), 14);
}

TEST(filled_slots, stand_in_two_columns_of_which_the_left_takes_the_odd_one)
{
    EXPECT_EQ(filled_slots(0), std::vector<int>());
    EXPECT_EQ(filled_slots(1), std::vector<int>{0});
    EXPECT_EQ(filled_slots(2), (std::vector<int>{0, 8}));
    EXPECT_EQ(filled_slots(5), (std::vector<int>{0, 1, 2, 8, 9}));
    EXPECT_EQ(filled_slots(13), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13}));
    EXPECT_EQ(filled_slots(14), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13, 14}));
}

TEST(sample_name, a_design_seen_the_other_way_has_a_twin)
{
    const design_record tall{.background = "Portrait", .sample = "a.jpg"};
    const design_record wide{.background = "Landscape", .sample = "a.jpg"};
    const design_record both{.background = "Both", .sample = "a.jpg"};
    EXPECT_EQ(sample_name(tall, orientation::portrait), "a.jpg");
    EXPECT_EQ(sample_name(tall, orientation::landscape), "a.jpg_");
    EXPECT_EQ(sample_name(wide, orientation::portrait), "a.jpg_");
    EXPECT_EQ(sample_name(wide, orientation::landscape), "a.jpg");
    EXPECT_EQ(sample_name(both, orientation::landscape), "a.jpg");
    EXPECT_EQ(sample_name({.background = "Landscape"}, orientation::portrait), "");
}
