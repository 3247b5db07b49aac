#include "frames/frame_field.h"

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
        all.main.frame_set_name = "club";
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
    set.all.main.frame_set_name = "other";
    EXPECT_THROW(set.field("Icon"), platform_error);
}
