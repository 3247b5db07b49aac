// The sample photos: enough of them, of both formats, and none a flat sheet of one colour.
#include "support/MFreeImage.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<std::string> photos()
{
    std::vector<std::string> found;
    for (const auto & entry : std::filesystem::directory_iterator(SAMPLE_PHOTOS)) {
        if (entry.path().extension() == ".jpg")
            found.push_back(entry.path().string());
    }
    return found;
}

/// How many of the 64 steps of brightness occur in a coarse look at the photo.
std::size_t tones(const bitmap & photo)
{
    const bitmap coarse = rescaled(photo, 48, 48);
    std::set<int> found;
    for (int y = 0; y < coarse.height(); ++y) {
        const auto row = coarse.row(y);
        for (std::size_t x = 0; x + 2 < row.size(); x += pixel_bytes)
            found.insert((row[x] + row[x + 1] + row[x + 2]) / 3 / 4);
    }
    return found.size();
}

}  // namespace

TEST(sample_photos, are_many_and_half_of_them_stand_upright)
{
    int upright = 0, lying = 0;
    for (const std::string & path : photos()) {
        const auto size = jpeg_size(path);
        ASSERT_TRUE(size) << path;
        EXPECT_GE(std::max(size->width, size->height), 1600) << path;
        ++(size->height > size->width ? upright : lying);
    }
    EXPECT_GE(upright + lying, 18);
    EXPECT_LE(std::abs(upright - lying), 2);
}

TEST(sample_photos, go_from_dark_to_light)
{
    for (const std::string & path : photos())
        EXPECT_GT(tones(load_picture(picture_format::jpeg, path)), 20u) << path;
}
