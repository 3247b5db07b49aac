#include "photos/unfinished_photo.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct unfinished_photo : testing::Test {
    temporary_folder folder;
    std::string whole = jpeg_bytes(noise(200, 300));

    std::string file(const std::string & bytes) const { return folder.write("a.jpg", bytes); }
    void move_clock(const std::string & path, std::chrono::seconds by) const
    {
        std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + by);
    }
};

}  // namespace

TEST_F(unfinished_photo, is_one_that_ends_too_early_and_was_changed_just_now)
{
    EXPECT_TRUE(is_unfinished(file("")));
    for (const std::size_t bytes : {std::size_t{40}, std::size_t{300}, whole.size() / 2, whole.size() - 200})
        EXPECT_TRUE(is_unfinished(file(whole.substr(0, bytes)))) << bytes;
    move_clock(file(""), std::chrono::seconds(30));
    EXPECT_TRUE(is_unfinished(folder.at("a.jpg"))) << "by a clock that goes ahead";
}

TEST_F(unfinished_photo, is_none_that_has_been_so_for_some_time)
{
    for (const std::string & bytes : {std::string(), whole.substr(0, whole.size() / 2)})
        for (const std::chrono::seconds by : {std::chrono::hours(-1), std::chrono::hours(1)}) {
            move_clock(file(bytes), by);
            EXPECT_FALSE(is_unfinished(folder.at("a.jpg")));
        }
}

TEST_F(unfinished_photo, is_none_that_is_whole_or_no_photo_or_gone)
{
    EXPECT_FALSE(is_unfinished(file(whole)));
    EXPECT_FALSE(is_unfinished(file(whole + "what a camera has written behind it")));
    EXPECT_FALSE(is_unfinished(file("a text")));
    EXPECT_FALSE(is_unfinished(file("x")));
    EXPECT_FALSE(is_unfinished(folder.at("gone.jpg")));
}
