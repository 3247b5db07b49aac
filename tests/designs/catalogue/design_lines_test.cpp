#include "designs/catalogue/design_lines.h"

#include <gtest/gtest.h>
#include <set>

TEST(split_key_value, cuts_at_the_first_equals_sign)
{
    std::string line = "Caption=a=b";
    EXPECT_EQ(split_key_value(line), "a=b");
    EXPECT_EQ(line, "Caption=");
}

TEST(split_key_value, leaves_a_line_without_equals_sign)
{
    std::string line = "[Design600]";
    EXPECT_EQ(split_key_value(line), "");
    EXPECT_EQ(line, "[Design600]");
    line = "=x";
    EXPECT_EQ(split_key_value(line), "x");
    EXPECT_EQ(line, "=");
}

TEST(design_section, is_cut_to_nine_characters_as_it_stands)
{
    EXPECT_EQ(design_section("[Design600]"), "Design600");
    EXPECT_EQ(design_section("[Design6001]"), "Design600");
    EXPECT_EQ(design_section("[Design60]"), "Design60]");
    EXPECT_EQ(design_section("[Designs"), "Designs");
    EXPECT_EQ(design_section("[design600]"), std::nullopt);
    EXPECT_EQ(design_section(" [Design600]"), std::nullopt);
}

TEST(design_lines, a_key_of_another_case_or_with_a_blank_is_ignored)
{
    design_record record;
    read_design_line(record, "name=x");
    read_design_line(record, "Name =x");
    read_design_line(record, " Name=x");
    read_design_line(record, "Names=x");
    read_design_line(record, "Name");
    read_design_line(record, "");
    EXPECT_EQ(record, design_record{});
}

TEST(design_lines, every_key_of_the_format_has_a_value_of_its_own)
{
    const char * const keys[] = {"Name",         "File",      "Style",         "Design",        "Background",
                                 "Ratio",        "Distort",   "Sample",        "Help Tip",      "Description",
                                 "System",       "Count",     "Turn BG",       "BG Image",      "BG Color",
                                 "Match",        "Resize",    "Caption",       "Frames",        "Shadows",
                                 "Block",        "Soft Edge", "Caption Color", "Caption Clear", "Frame Color",
                                 "Shadow Color", "Flip",      "Borders",       "Quick Shape"};
    ASSERT_EQ(design_keys().size(), std::size(keys));
    design_record record;
    for (const char * key : keys)
        read_design_line(record, std::string(key) + "=value of " + key);
    std::set<std::string> values;
    for (std::size_t i = 0; i < std::size(keys); ++i) {
        EXPECT_EQ(design_keys()[i].text, std::string(keys[i]) + "=");
        EXPECT_EQ(record.*design_keys()[i].value, std::string("value of ") + keys[i]);
        values.insert(record.*design_keys()[i].value);
    }
    EXPECT_EQ(values.size(), std::size(keys));
    EXPECT_EQ(record.help_tip, "value of Help Tip");
    EXPECT_EQ(record.quick_shape, "value of Quick Shape");
}

TEST(design_lines, the_defaults_are_those_of_a_missing_key)
{
    const design_record record;
    EXPECT_EQ(record.help_tip, "No information available");
    EXPECT_EQ(record.ratio, "2x3");
    EXPECT_EQ(record.distort, "No");
    EXPECT_EQ(record.bg_image, "Either");
    EXPECT_EQ(record.resize, "Crop");
    for (const std::string & value :
         {record.turn_bg, record.match, record.frames, record.shadows, record.flip})
        EXPECT_EQ(value, "Yes");
    for (const std::string & value : {record.block, record.soft_edge})
        EXPECT_EQ(value, "Choose");
    for (const std::string & value :
         {record.section, record.name, record.file, record.style, record.design, record.background,
          record.sample, record.description, record.system, record.count, record.bg_color, record.caption,
          record.caption_color, record.caption_clear, record.frame_color, record.shadow_color, record.borders,
          record.quick_shape})
        EXPECT_EQ(value, "");
}
