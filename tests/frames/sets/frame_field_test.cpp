#include "frames/sets/frame_field.h"

#include "session/windows.h"
#include "support/platform_error.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

struct frame_set {
    explicit frame_set(const std::string & bytes)
    {
        folder.write("frames/club/design.ini", bytes);
        all.main.data_folder = folder.path();
        all.main.collage.frame_set_name = "club";
    }
    std::string field(std::string_view key) const { return get_frame_field(all.main, key); }

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
};

}  // namespace

TEST(get_frame_field, takes_the_first_line_of_the_key_in_any_section)
{
    const frame_set set("Picture List=outside\r\n[Frame Design]\r\nPicture List=team\r\n");
    EXPECT_EQ(set.field("Picture List"), "outside");
}

TEST(get_frame_field, compares_exactly_and_trims_nothing)
{
    const frame_set set("[Frame Design]\r\npicture list=a\r\nPicture List =b\r\nPicture List= c \r\n");
    EXPECT_EQ(set.field("Picture List"), " c ");
}

TEST(get_frame_field, gives_a_long_value_whole)
{
    const frame_set set("Caption Text=" + std::string(300, 'x') + "\r\n");
    EXPECT_EQ(set.field("Caption Text"), std::string(300, 'x'));
}

TEST(get_frame_field, is_empty_for_a_missing_key)
{
    const frame_set set("[Frame Design]\r\nIcon=None\r\n");
    EXPECT_EQ(set.field("Picture List"), "");
}

TEST(get_frame_field, raises_for_a_set_without_its_file)
{
    frame_set set("");
    set.all.main.collage.frame_set_name = "other";
    EXPECT_THROW(set.field("Icon"), platform_error);
}

// ---- the set that is edited

namespace {

struct edited_set : frame_set {
    explicit edited_set(const std::string & bytes) : frame_set(bytes) { all.custom.edit_frame_name = "club"; }
    std::string setting(std::string_view key) const { return GetFrameSetting(all.main, key); }
};

}  // namespace

TEST(GetFrameSetting, finds_what_the_line_scan_misses)
{
    const edited_set set("[Frame Design]\r\nIcon = sun \r\npicture list=team\r\n");
    EXPECT_EQ(set.setting("Icon"), "sun");
    EXPECT_EQ(set.field("Icon"), "");
    EXPECT_EQ(set.setting("Picture List"), "team");
    EXPECT_EQ(set.field("Picture List"), "");
}

TEST(GetFrameSetting, cuts_a_long_value_that_the_line_scan_gives_whole)
{
    const std::string caption(300, 'x');
    const edited_set set("[Frame Design]\r\nCaption Text=" + caption + "\r\n");
    EXPECT_EQ(set.setting("Caption Text"), std::string(254, 'x'));
    EXPECT_EQ(set.field("Caption Text"), caption);
}

TEST(GetFrameSetting, cuts_in_front_of_a_letter_that_doesn_t_fit_whole)
{
    const edited_set set("[Frame Design]\r\nA=" + std::string(253, 'x') +
                         "\xC3\xA4yz\r\nB=" + std::string(252, 'x') + "\xC3\xA4\r\n");
    EXPECT_EQ(set.setting("A"), std::string(253, 'x'));
    EXPECT_EQ(set.setting("B"), std::string(252, 'x') + "\xC3\xA4");
}

TEST(GetFrameSetting, is_empty_without_the_key_or_the_file)
{
    edited_set set("[Other]\r\nIcon=sun\r\n");
    EXPECT_EQ(set.setting("Icon"), "");
    set.all.custom.edit_frame_name = "gone";
    EXPECT_EQ(set.setting("Icon"), "");
}

TEST(SetFrameSetting, writes_a_long_value_whole_and_without_blanks)
{
    std::string design;
    SetFrameSetting(design, "Caption Text", std::string(300, 'x'));
    SetFrameSetting(design, "Icon", "None");
    EXPECT_EQ(design, "[Frame Design]\r\nCaption Text=" + std::string(300, 'x') + "\r\nIcon=None\r\n");
}
