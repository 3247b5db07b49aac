#include "support/MFreeImage.h"
#include "support/files/archive.h"
#include "support/files/paths.h"
#include "support/files/profile.h"
#include "support/numbers.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

const std::vector<std::string> sets{"basketball", "cardinals", "colts", "rams", "soccer"};

// The supplied sets as the start of the program lays them out.
struct supplied_frames : testing::Test {
    supplied_frames()
    {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        EXPECT_TRUE(extract_zip(BUILT_SEED "/frames.zip", folder));
    }
    ~supplied_frames() override { std::filesystem::remove_all(folder); }
    std::string setting(const std::string & set, const char * key) const
    {
        return profile(folder + "/" + set + "/design.ini").value("Frame Design", key);
    }
    picture_size frame(const std::string & set, char letter, int number) const
    {
        const std::string file = std::string(1, letter) + "frame" + formatted(number, 2) + ".jpg";
        return jpeg_size(folder + "/" + set + "/" + file).value_or(picture_size{});
    }
    const std::string folder = testing::TempDir() + "supplied_frames";
};

}  // namespace

TEST_F(supplied_frames, are_five_sets_and_nothing_else)
{
    std::vector<std::string> found = folders_in(folder);
    std::ranges::sort(found);
    EXPECT_EQ(found, sets);
    EXPECT_TRUE(files_in(folder).empty());
}

TEST_F(supplied_frames, have_both_frames_of_every_caption)
{
    for (const std::string & set : sets) {
        const int count = std::stoi(setting(set, "Number of Captions"));
        EXPECT_GE(count, 6);
        EXPECT_EQ(files_in(folder + "/" + set).size(), 2U + 2U * (static_cast<std::size_t>(count) + 1U));
        for (int number = 0; number <= count; ++number) {
            EXPECT_EQ(frame(set, 'p', number).height, 520) << set << number;
            EXPECT_EQ(frame(set, 'l', number).width, 520) << set << number;
        }
    }
}

TEST_F(supplied_frames, differ_in_their_colours_and_need_no_list)
{
    std::vector<std::string> colors;
    for (const std::string & set : sets) {
        colors.push_back(setting(set, "Outside Color"));
        EXPECT_EQ(setting(set, "Picture List"), "None");
        EXPECT_NE(setting(set, "Caption Text"), "");
    }
    std::ranges::sort(colors);
    EXPECT_EQ(std::ranges::adjacent_find(colors), colors.end());
}
