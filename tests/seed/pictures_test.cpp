// The rendered pictures: there, and of the size that the designs count on.
#include "support/MFreeImage.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string built(const std::string & name)
{
    return std::string(BUILT_SEED "/") + name;
}

/// Width x height as the header of the JPEG says.
std::string size_of(const std::string & name)
{
    const auto size = jpeg_size(built(name));
    return size ? std::to_string(size->width) + "x" + std::to_string(size->height) : "none";
}

using design = std::map<std::string, std::string>;

std::string value(const design & one, const std::string & key)
{
    const auto found = one.find(key);
    return found == one.end() ? "" : found->second;
}

std::vector<design> catalogue()
{
    std::ifstream file(SEED_FOLDER "/designs.ini");
    std::vector<design> designs;
    for (std::string line; std::getline(file, line);) {
        line.pop_back();
        if (line.starts_with("["))
            designs.emplace_back();
        if (const auto sign = line.find('='); sign != std::string::npos)
            designs.back()[line.substr(0, sign)] = line.substr(sign + 1);
    }
    return designs;
}

/// The light that a channel of a picture stands for, 0 to 1.
double light(std::uint8_t level)
{
    return std::pow(level / 255.0, 2.2);
}

/// Of the strip at the top, in its middle half.
double brightness_behind_a_caption(const std::string & name)
{
    const bitmap ground = load_picture(picture_format::jpeg, built(name));
    double sum = 0;
    int count = 0;
    for (int y = ground.height() * 90 / 100; y < ground.height() * 97 / 100; ++y)  // row 0 is at the bottom
        for (int x = ground.width() / 4; x < ground.width() * 3 / 4; ++x, ++count) {
            const rgb_triple seen = pixel_at(ground, x, y).value();
            sum += 0.2126 * light(seen.red) + 0.7152 * light(seen.green) + 0.0722 * light(seen.blue);
        }
    return sum / count;
}

/// The share of a picture that lies in runs of one colour along its rows: where a gradient shows its steps.
double share_in_flat_runs(const std::string & name)
{
    constexpr int far = 16, flat = 14;
    const bitmap picture = load_picture(picture_format::jpeg, built(name));
    int seen = 0, inside = 0;
    for (int y = far / 2; y < picture.height(); y += far)
        for (int x = 0, run = 0; x < picture.width(); ++x, ++seen) {
            run = x > 0 && pixel_at(picture, x, y) == pixel_at(picture, x - 1, y) ? run + 1 : 1;
            inside += run == flat ? flat : run > flat ? 1 : 0;
        }
    return static_cast<double>(inside) / seen;
}

/// How much two squares of 400 pixels of a picture differ, in levels, on average; places from the lower left.
double unlikeness(const bitmap & picture, int left, int bottom, int other_left, int other_bottom)
{
    constexpr int side = 400;
    double sum = 0;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const rgb_triple one = pixel_at(picture, left + x, bottom + y).value();
            const rgb_triple other = pixel_at(picture, other_left + x, other_bottom + y).value();
            sum += std::abs(one.green - other.green);
        }
    return sum / (side * side);
}

/// As pages of the net are judged: 1 for none, 21 for black on white.
double contrast(double one, double other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

}  // namespace

TEST(seed_pictures, the_white_sheet_is_large_and_white_all_over)
{
    const bitmap white = load_picture(picture_format::jpeg, built("images/white.jpg"));
    ASSERT_TRUE(white);
    EXPECT_EQ(white.width(), 3200);
    EXPECT_EQ(white.height(), 3200);
    for (int y = 0; y < white.height(); ++y) {
        const auto row = channels(white.row(y));
        ASSERT_TRUE(std::ranges::all_of(row, [](std::uint8_t level) { return level == 255; })) << "row " << y;
    }
}

// One that turns is stretched either way, so it is square.
TEST(seed_pictures, every_background_of_a_design_fills_its_poster_and_has_its_preview)
{
    int found = 0;
    for (const design & one : catalogue()) {
        const std::string name = value(one, "BG Image");
        if (!name.ends_with(".jpg"))
            continue;
        const bool wide = value(one, "Background") == "Landscape", turns = value(one, "Turn BG") == "Yes";
        EXPECT_EQ(size_of("images/" + name), turns ? "2400x2400" : wide ? "3000x2000" : "2000x3000") << name;
        EXPECT_EQ(size_of("images/preview/p_" + name), turns  ? "360x360"
                                                       : wide ? "450x300"
                                                              : "300x450")
            << name;
        ++found;
    }
    EXPECT_GE(found, 70);
}

// A caption begins at the top and white. The red that a catalogue can ask for is no better on any ground but
// black.
TEST(seed_pictures, a_caption_is_read_in_white_on_every_background)
{
    constexpr double white = 1, least = 4.5;
    int found = 0;
    for (const design & one : catalogue()) {
        const std::string name = value(one, "BG Image");
        if (!name.ends_with(".jpg"))
            continue;
        const double ground = brightness_behind_a_caption("images/preview/p_" + name);
        EXPECT_GE(contrast(white, ground), least) << name << ", " << ground;
        EXPECT_TRUE(value(one, "Caption Color").empty()) << name;
        ++found;
    }
    EXPECT_GE(found, 70);
}

TEST(seed_pictures, gradients_of_backgrounds_show_no_rings)
{
    for (const char * name :
         {"wedding", "starry_night_wide", "ink_tall", "best_wishes", "oak", "strung_lights"})
        EXPECT_LT(share_in_flat_runs(std::string("images/") + name + ".jpg"), 0.01) << name;
}

TEST(seed_pictures, what_photos_lie_on_does_not_repeat_itself)
{
    for (const char * name : {"oak", "linen", "cork_tall", "felt_tall", "kraft", "lawn", "stone_wall"}) {
        const bitmap ground =
            load_picture(picture_format::jpeg, built(std::string("images/") + name + ".jpg"));
        for (const auto & [across, down] : {std::pair{500, 0}, {0, 500}, {1000, 500}, {270, 0}, {0, 270}})
            EXPECT_GT(unlikeness(ground, 300, 700, 300 + across, 700 + down), 1.5)
                << name << ' ' << across << ' ' << down;
    }
}

TEST(seed_pictures, every_design_has_its_samples_and_a_second_one_where_it_turns)
{
    std::ifstream catalogue(SEED_FOLDER "/designs.ini");
    std::string sample, own;
    int found = 0;
    for (std::string line; std::getline(catalogue, line);) {
        line.pop_back();
        if (line.starts_with("["))
            sample.clear();
        if (line.starts_with("Background="))
            own = line.ends_with("Landscape") ? "450x300" : "300x450";
        if (line.starts_with("Sample=")) {
            sample = "samples/" + line.substr(7);
            EXPECT_EQ(size_of(sample), own) << sample;
            ++found;
        }
        if (line == "Turn BG=Yes" && !sample.empty()) {
            EXPECT_EQ(size_of(sample + "_"), own == "450x300" ? "300x450" : "450x300") << sample;
        }
    }
    EXPECT_GE(found, 72);
}

TEST(seed_pictures, backgrounds_fill_the_poster_and_have_their_previews)
{
    EXPECT_EQ(size_of("images/autumn.jpg"), "2000x3000");
    EXPECT_EQ(size_of("images/preview/p_autumn.jpg"), "300x450");
    EXPECT_EQ(size_of("images/starry_night_wide.jpg"), "3000x2000");
    EXPECT_EQ(size_of("images/preview/p_starry_night_wide.jpg"), "450x300");
    EXPECT_EQ(size_of("samples/not_yet.jpg"), "300x450");
}

TEST(seed_pictures, every_quick_style_has_its_ready_made_previews_in_the_size_of_the_window)
{
    std::vector<std::string> states{"nb", "sb", "lb", "s"};
    for (const char * shuffled : {"", "s"})
        for (const char * resized : {"", "r"})
            for (const char * rotated : {"o", "r"})
                states.push_back(std::string(shuffled) + resized + rotated);
    for (const std::string & state : states) {
        EXPECT_EQ(size_of("images/preview/p_" + state + ".jpg"), "308x457") << state;
        EXPECT_EQ(size_of("images/preview/l_" + state + ".jpg"), "457x308") << state;
    }
}

TEST(seed_pictures, every_fixed_picture_and_mask_of_a_template_is_built)
{
    std::ifstream templates(SEED_FOLDER "/design_list");
    int found = 0;
    for (std::string line; std::getline(templates, line);) {
        const std::string file = line.substr(line.rfind(':') + 1);
        if (line.starts_with('[') || file.size() < 2 || file.starts_with('@'))
            continue;
        const std::string name = file.substr(0, file.size() - 1);  // without the CR
        const bool fixed = name.starts_with("images/");
        EXPECT_TRUE(std::filesystem::exists(built(fixed ? name : "images/" + name))) << name;
        ++found;
    }
    EXPECT_GT(found, 20);
}

TEST(seed_pictures, the_folders_that_the_program_expects_are_there)
{
    for (const char * name : {"tmp", "designs", "descriptions", "samples", "piclists", "user_images",
                              "frames", "icons", "images"})
        EXPECT_TRUE(std::filesystem::is_directory(built(name))) << name;
    for (const char * name :
         {"designs.ini", "design_list", "description_list", "quick_block.ini", "block_templates",
          "quick_scatter.ini", "scatter_templates", "quick_matrix.ini", "icons/icons"})
        EXPECT_TRUE(std::filesystem::is_regular_file(built(name))) << name;
}
