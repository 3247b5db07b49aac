// The icons of the frames: as the list names them, and as frames cut them out.
#include "support/MFreeImage.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <string>

namespace {

std::string content(const std::string & path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Names and files of the list, cut at the first blank.
std::map<std::string, std::string> listed()
{
    std::map<std::string, std::string> found;
    std::ifstream file(BUILT_SEED "/icons/icons", std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        line.pop_back();
        const auto blank = line.find(' ');
        EXPECT_TRUE(found.emplace(line.substr(0, blank), line.substr(blank + 1)).second) << line;
    }
    return found;
}

bool dropped(rgb_triple seen, rgb_triple key)
{
    const auto near = [](int one, int other) { return std::abs(one - other) <= 110; };
    return near(seen.red, key.red) && near(seen.green, key.green) && near(seen.blue, key.blue);
}

bool is_light(rgb_triple seen)
{
    return std::min({seen.red, seen.green, seen.blue}) >= 60;
}

// As a frame across shows it.
bitmap four_fifths(const bitmap & icon)
{
    return rescaled(icon, icon.width() * 8 / 10, icon.height() * 8 / 10);
}

// Black where nothing of the icon is, white where it is.
bitmap covered_part(bitmap icon)
{
    const rgb_triple ground = *pixel_at(icon, 0, 0);
    for (int y = 0; y < icon.height(); ++y)
        for (pixel & each : icon.row(y))
            each = rgb_triple(each) == ground ? rgb_triple{0, 0, 0} : rgb_triple{255, 255, 255};
    return icon;
}

// Pixels that are left out though nothing of the ground is in them.
int holes_in(const bitmap & icon, const bitmap & cover)
{
    int holes = 0;
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x)
            if (pixel_at(cover, x, y)->red == 255)
                holes += dropped(*pixel_at(icon, x, y), *pixel_at(icon, 1, 1)) ? 1 : 0;
    return holes;
}

}  // namespace

TEST(icons, are_at_least_twelve_and_each_file_is_listed_once)
{
    std::set<std::string> files, there;
    for (const auto & [name, file] : listed())
        EXPECT_TRUE(files.insert(file).second) << file;
    for (const auto & entry : std::filesystem::directory_iterator(BUILT_SEED "/icons"))
        if (entry.path().extension() == ".bmp")
            there.insert(entry.path().filename().string());
    EXPECT_EQ(files, there);
    EXPECT_GE(files.size(), 12u);
}

TEST(icons, are_small_windows_bitmaps_of_24_bits)
{
    for (const auto & [name, file] : listed()) {
        const std::string path = BUILT_SEED "/icons/" + file, bytes = content(path);
        ASSERT_GT(bytes.size(), 54u) << file;
        EXPECT_TRUE(bytes.starts_with("BM")) << file;
        EXPECT_EQ(bytes[28], 24) << file;
        EXPECT_EQ(bytes[30], 0) << file << " is compressed";
        const bitmap icon = load_picture(picture_format::bmp, path);
        EXPECT_LE(icon.width(), 100) << file;
        EXPECT_LE(icon.height(), 90) << file;
    }
}

TEST(icons, have_no_light_rim_on_a_dark_band)
{
    for (const auto & [name, file] : listed()) {
        const bitmap icon = load_picture(picture_format::bmp, BUILT_SEED "/icons/" + file);
        const rgb_triple key = *pixel_at(icon, 0, 0);
        for (int y = 1; y + 1 < icon.height(); ++y)
            for (int x = 1; x + 1 < icon.width(); ++x) {
                const rgb_triple seen = *pixel_at(icon, x, y);
                const bool at_edge =
                    dropped(*pixel_at(icon, x - 1, y), key) || dropped(*pixel_at(icon, x + 1, y), key) ||
                    dropped(*pixel_at(icon, x, y - 1), key) || dropped(*pixel_at(icon, x, y + 1), key);
                EXPECT_FALSE(at_edge && is_light(seen) && !dropped(seen, key))
                    << file << " at " << x << ", " << y;
            }
    }
}

TEST(icons, have_no_light_specks_at_their_rim_in_a_frame_across)
{
    for (const auto & [name, file] : listed()) {
        const bitmap icon = four_fifths(load_picture(picture_format::bmp, BUILT_SEED "/icons/" + file));
        const rgb_triple key = *pixel_at(icon, 1, 1);
        const auto is_out = [&](int x, int y) { return dropped(*pixel_at(icon, x, y), key); };
        int specks = 0;
        for (int y = 1; y + 1 < icon.height(); ++y)
            for (int x = 1; x + 1 < icon.width(); ++x)
                if (!is_out(x, y) &&
                    (is_out(x - 1, y) || is_out(x + 1, y) || is_out(x, y - 1) || is_out(x, y + 1)))
                    specks += is_light(*pixel_at(icon, x, y)) ? 1 : 0;
        EXPECT_EQ(specks, 0) << file;
    }
}

TEST(icons, have_no_holes_at_either_size)
{
    for (const auto & [name, file] : listed()) {
        const std::string path = BUILT_SEED "/icons/" + file;
        const bitmap whole = load_picture(picture_format::bmp, path);
        const bitmap cover = covered_part(load_picture(picture_format::bmp, path));
        EXPECT_EQ(holes_in(whole, cover), 0) << file;
        EXPECT_EQ(holes_in(four_fifths(whole), four_fifths(cover)), 0) << file;
    }
}

TEST(icons, stand_free_on_their_key_at_both_sizes)
{
    for (const auto & [name, file] : listed()) {
        const bitmap icon = load_picture(picture_format::bmp, BUILT_SEED "/icons/" + file);
        const bitmap smaller = four_fifths(icon);
        for (const bitmap * image : {&icon, &smaller}) {
            const int corner = image == &icon ? 0 : 1;
            const rgb_triple key = *pixel_at(*image, corner, corner);
            EXPECT_EQ(key, *pixel_at(icon, 0, 0)) << file;
            int drawn = 0;
            for (int y = 0; y < image->height(); ++y)
                for (int x = 0; x < image->width(); ++x) {
                    const bool clear = dropped(*pixel_at(*image, x, y), key);
                    drawn += clear ? 0 : 1;
                    // The last columns and rows are not copied.
                    const bool rim = x == 0 || y == 0 || x > image->width() - 4 || y > image->height() - 4;
                    EXPECT_TRUE(clear || !rim) << file << " at " << x << ", " << y;
                }
            EXPECT_GT(drawn * 6, image->width() * image->height()) << file;
        }
    }
}
