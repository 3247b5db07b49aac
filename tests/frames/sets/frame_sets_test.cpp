#include "frames/sets/frame_sets.h"

#include "session/windows.h"
#include "support/files/paths.h"
#include "support/platform_error.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct frame_sets_test : testing::Test {
    frame_sets_test()
    {
        all.main.data_folder = folder.path();
        make_folder(folder.at("frames"));
    }
    std::vector<std::string> listed_sets()
    {
        std::vector<std::string> sets = start_custom_frames(all.main);
        std::ranges::sort(sets);
        return sets;
    }
    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
};

}  // namespace

TEST_F(frame_sets_test, each_folder_is_a_set_and_a_file_is_none)
{
    folder.write("frames/club/design.ini", "");
    folder.write("frames/Uncle Joe/captions", "");
    folder.write("frames/notes", "");
    EXPECT_EQ(listed_sets(), (std::vector<std::string>{"Uncle Joe", "club"}));
}

TEST_F(frame_sets_test, one_that_was_never_named_goes_with_all_its_files)
{
    folder.write("frames/_named_.not/captions", "\r\n");
    folder.write("frames/_named_.not/pframe00.jpg", "x");
    EXPECT_EQ(listed_sets(), std::vector<std::string>());
    EXPECT_FALSE(folder_exists(joined(folder.path(), "frames/_named_.not")));
}

TEST_F(frame_sets_test, deleting_does_not_descend)
{
    folder.write("frames/club/a", "");
    folder.write("frames/club/inner/b", "");
    EXPECT_THROW(delete_frame_set(all.main, "club"), platform_error);
    EXPECT_FALSE(file_exists(joined(folder.path(), "frames/club/a")));
    EXPECT_TRUE(file_exists(joined(folder.path(), "frames/club/inner/b")));
}
