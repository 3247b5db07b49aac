// The sample photos: enough of them, of both formats, and none a flat sheet of one colour.
#include "support/MFreeImage.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <numbers>
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

/// A coarse look at each photo; they are loaded once.
const std::vector<bitmap> & coarse_looks()
{
    static const std::vector<bitmap> looks = [] {
        std::vector<bitmap> found;
        for (const std::string & path : photos())
            found.push_back(rescaled(load_picture(picture_format::jpeg, path), 48, 48));
        return found;
    }();
    return looks;
}

/// How many of the 64 steps of brightness occur in it.
std::size_t tones(const bitmap & coarse)
{
    std::set<int> found;
    for (int y = 0; y < coarse.height(); ++y) {
        const auto row = channels(coarse.row(y));
        for (std::size_t x = 0; x + 2 < row.size(); x += sizeof(pixel))
            found.insert((row[x] + row[x + 1] + row[x + 2]) / 3 / 4);
    }
    return found.size();
}

double brightness(const bitmap & photo)
{
    const bitmap point = rescaled(photo, 1, 1);
    const auto row = channels(point.row(0));
    return (row[0] + row[1] + row[2]) / 3.0;
}

/// Which twelfth of the colour circle the mean colour of the photo falls into.
int main_hue(const bitmap & photo)
{
    const bitmap point = rescaled(photo, 1, 1);
    const auto row = channels(point.row(0));
    const double red = row[2], green = row[1], blue = row[0];
    const double turn = std::atan2(std::sqrt(3.0) * (green - blue), 2 * red - green - blue);
    return static_cast<int>(std::floor((turn / std::numbers::pi + 1) * 6));
}

/// How far two pictures of one size differ, in levels, a channel of a pixel on average.
double distance(const bitmap & one, const bitmap & other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto a = channels(one.row(y)), b = channels(other.row(y));
        for (std::size_t x = 0; x < a.size(); ++x)
            sum += std::abs(a[x] - b[x]);
    }
    return sum / (one.height() * static_cast<double>(channels(one.row(0)).size()));
}

std::string contents(const std::filesystem::path & path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

TEST(sample_photos, are_the_rendered_ones)
{
    std::size_t rendered = 0;
    for (const auto & entry : std::filesystem::directory_iterator(SEED_FOLDER "/photos")) {
        const auto built = std::filesystem::path(SAMPLE_PHOTOS) / entry.path().filename();
        ASSERT_TRUE(std::filesystem::exists(built)) << entry.path() << " is no sample photo";
        EXPECT_TRUE(contents(entry.path()) == contents(built)) << built;
        EXPECT_LE(entry.file_size(), 400'000u) << entry.path();
        ++rendered;
    }
    EXPECT_EQ(rendered, 48u);
    EXPECT_EQ(photos().size(), rendered);
}

TEST(sample_photos, are_many_and_half_of_them_stand_upright)
{
    int upright = 0, lying = 0;
    for (const std::string & path : photos()) {
        const auto size = jpeg_size(path);
        ASSERT_TRUE(size) << path;
        EXPECT_GE(std::max(size->width, size->height), 1600) << path;
        ++(size->height > size->width ? upright : lying);
    }
    EXPECT_GE(upright + lying, 40);
    EXPECT_LE(std::abs(upright - lying), 2);
}

TEST(sample_photos, come_at_every_time_of_the_day)
{
    int dark = 0, bright = 0;
    for (const bitmap & photo : coarse_looks()) {
        const double level = brightness(photo);
        dark += level < 75;
        bright += level > 140;
    }
    EXPECT_GE(dark, 6);
    EXPECT_GE(bright, 6);
}

TEST(sample_photos, are_of_different_colours)
{
    std::set<int> hues;
    for (const bitmap & photo : coarse_looks())
        hues.insert(main_hue(photo));
    EXPECT_GE(hues.size(), 7u);
}

TEST(sample_photos, are_all_different_at_a_glance)
{
    const std::vector<bitmap> & looks = coarse_looks();
    for (std::size_t one = 0; one < looks.size(); ++one) {
        for (std::size_t other = one + 1; other < looks.size(); ++other)
            EXPECT_GT(distance(looks[one], looks[other]), 20) << photos()[one] << " and " << photos()[other];
    }
}

TEST(sample_photos, go_from_dark_to_light)
{
    for (std::size_t i = 0; i < coarse_looks().size(); ++i)
        EXPECT_GT(tones(coarse_looks()[i]), 20u) << photos()[i];
}
