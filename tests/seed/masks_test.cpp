// The rendered shape masks, held against the rules by which a shape is drawn.
#include "support/MFreeImage.h"
#include "tests/seed/mask_parts.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

std::vector<std::string> masks()
{
    std::vector<std::string> found;
    for (const char * folder : {BUILT_SEED "/images", BUILT_SEED "/alpha", BUILT_SEED "/puzzle"})
        for (const auto & entry : std::filesystem::recursive_directory_iterator(folder))
            if (entry.path().extension() == ".gif")
                found.push_back(entry.path().string());
    std::ranges::sort(found);
    return found;
}

/// The pieces of the designer of puzzles have a shadow: pieces_test.cpp.
std::vector<std::string> grey_masks()
{
    std::vector<std::string> found = masks();
    std::erase_if(found, [](const std::string & path) { return path.starts_with(BUILT_SEED "/puzzle"); });
    return swept(found);
}

bool patterned(const std::string & path)
{
    const std::string name = std::filesystem::path(path).stem().string();
    return name == "polka_dots" || name == "stripes" || name == "target";
}

/// True when a pixel of the inside has one of the ground below it or at its left.
bool touches_ground(const bitmap & mask)
{
    const std::vector<part> parts = parts_of(mask);
    const auto width = static_cast<std::size_t>(mask.width());
    const auto touch = [](part one, part other) {
        return (one == part::ground && other == part::inside) ||
               (one == part::inside && other == part::ground);
    };
    for (std::size_t at = width; at < parts.size(); ++at) {
        if (touch(parts[at], parts[at - width]) || touch(parts[at], parts[at - 1]))
            return true;
    }
    return false;
}

double share_of_inside(const bitmap & mask)
{
    const std::vector<part> parts = parts_of(mask);
    return static_cast<double>(std::ranges::count(parts, part::inside)) / static_cast<double>(parts.size());
}

std::string letter_path(const std::string & folder, char character)
{
    return BUILT_SEED "/alpha/" + folder + "char_" + character + ".gif";
}

struct pixel_place {
    int x = 0, y = 0;
};
struct pixel_way {
    pixel_place from, step;
};

/// How many pixels the first stroke takes that lies on the way.
int inside_along(const bitmap & mask, pixel_way way)
{
    int count = 0;
    for (pixel_place at = way.from; at.x < mask.width() && at.y < mask.height();
         at.x += way.step.x, at.y += way.step.y) {
        if (part_of(pixel_at(mask, at.x, at.y).value(), rgb_triple(mask.row(0).front())) == part::inside)
            ++count;
        else if (count > 0)
            break;
    }
    return count;
}

/// The first and the last row in which a photo shows.
std::pair<std::size_t, std::size_t> rows_inside(const bitmap & mask)
{
    const std::vector<part> parts = parts_of(mask);
    const auto first = std::ranges::find(parts, part::inside) - parts.begin();
    const auto last = parts.rend() - std::ranges::find(parts.rbegin(), parts.rend(), part::inside) - 1;
    const auto width = static_cast<std::ptrdiff_t>(mask.width());
    return {static_cast<std::size_t>(first / width), static_cast<std::size_t>(last / width)};
}

}  // namespace

TEST(masks, are_there_for_every_quick_shape)
{
    std::set<std::string> names;
    for (const std::string & path : masks())
        names.insert(std::filesystem::path(path).stem().string());
    for (const char * name :
         {"circle", "star", "oval", "cloud", "stripes", "target", "polka_dots", "stamp", "heart"})
        EXPECT_TRUE(names.contains(name)) << name;
    for (const char digit : {'1', '2', '3', '4', '5', '6'}) {
        EXPECT_TRUE(names.contains(std::string("leaf_") + digit));
        EXPECT_TRUE(names.contains(std::string("puzzle_") + digit));
    }
}

TEST(masks, are_there_for_every_letter_and_digit_of_each_alphabet)
{
    for (const std::string folder : {"", "sturdy/", "serif/"})
        for (const char character : std::string("abcdefghijklmnopqrstuvwxyz0123456789"))
            EXPECT_TRUE(std::filesystem::exists(letter_path(folder, character))) << folder << character;
}

TEST(masks, no_letter_is_the_same_in_two_alphabets)
{
    const std::string characters = "abcdefghijklmnopqrstuvwxyz0123456789";
    for (const char character : swept(std::vector<char>(characters.begin(), characters.end()))) {
        std::set<std::vector<part>> drawn;
        for (const char * folder : {"", "sturdy/", "serif/"})
            drawn.insert(parts_of(load_picture(picture_format::gif, letter_path(folder, character))));
        EXPECT_EQ(drawn.size(), 3U) << character;
    }
}

TEST(masks, strokes_of_letters_that_lie_are_thinner_than_those_that_stand)
{
    for (const std::string folder : {"", "sturdy/", "serif/"}) {
        const bitmap letter = load_picture(picture_format::gif, letter_path(folder, 'h'));
        const int stem = inside_along(letter, {.from = {.x = 0, .y = 200}, .step = {.x = 1, .y = 0}});
        const int beam = inside_along(letter, {.from = {.x = 400, .y = 0}, .step = {.x = 0, .y = 1}});
        EXPECT_GT(stem, 150) << folder;
        EXPECT_LT(beam, stem) << folder;
        EXPECT_GT(beam, 60) << folder;
    }
}

TEST(masks, round_letters_reach_beyond_the_lines_on_which_flat_ones_stand)
{
    for (const std::string folder : {"sturdy/", "serif/"}) {
        const auto rows = [&](char character) {
            return rows_inside(load_picture(picture_format::gif, letter_path(folder, character)));
        };
        const auto [flat_first, flat_last] = rows('h');
        for (const char character : std::string("cgos0368")) {
            const auto [first, last] = rows(character);
            EXPECT_LT(first, flat_first) << folder << character;
            EXPECT_GT(last, flat_last) << folder << character;
            EXPECT_LT(flat_first - first, 20) << folder << character;
        }
    }
}

TEST(masks, are_square_with_a_white_ground_at_the_lower_left)
{
    for (const std::string & path : grey_masks()) {
        const bitmap mask = load_picture(picture_format::gif, path);
        ASSERT_TRUE(mask) << path;
        EXPECT_EQ(mask.width(), mask.height()) << path;
        EXPECT_EQ(pixel_at(mask, 0, 0), (rgb_triple{255, 255, 255})) << path;
    }
}

TEST(masks, hold_no_colour_that_would_be_taken_for_a_key)
{
    for (const std::string & path : grey_masks()) {
        const bitmap mask = load_picture(picture_format::gif, path);
        const bitmap small = rescaled(mask, 57, 57);
        for (const bitmap * image : {&mask, &small}) {
            for (int y = 0; y < image->height(); ++y) {
                const auto row = channels(image->row(y));
                for (std::size_t x = 0; x < row.size(); x += sizeof(pixel))
                    ASSERT_TRUE(row[x] == row[x + 1] && row[x] == row[x + 2]) << path;
            }
        }
    }
}

TEST(masks, leave_a_fair_share_of_the_square_to_the_photo)
{
    for (const std::string & path : swept(masks())) {
        const double share = share_of_inside(load_picture(picture_format::gif, path));
        EXPECT_GT(share, 0.25) << path;
        EXPECT_LT(share, 0.95) << path;
    }
}

TEST(masks, have_a_grey_rim_all_round_unless_they_are_patterns)
{
    for (const std::string & path : grey_masks()) {
        if (patterned(path))
            continue;
        EXPECT_FALSE(touches_ground(load_picture(picture_format::gif, path))) << path;
    }
}

TEST(masks, any_two_pieces_of_the_puzzle_join)
{
    constexpr std::size_t size = 800, step = 604;  // the body of a piece and a little
    std::vector<std::vector<part>> pieces;
    for (const char digit : {'1', '2', '3', '4', '5', '6'})
        pieces.push_back(parts_of(
            load_picture(picture_format::gif, std::string(BUILT_SEED "/images/puzzle_") + digit + ".gif")));
    for (const auto & one : pieces)
        for (const auto & other : pieces) {
            int double_beside = 0, double_below = 0;
            for (std::size_t along = 0; along < size; ++along)
                for (std::size_t deep = 0; deep + step < size; ++deep) {
                    const auto inside = [&](const std::vector<part> & piece, std::size_t row,
                                            std::size_t column) {
                        return piece[row * size + column] == part::inside ? 1 : 0;
                    };
                    double_beside += inside(one, along, deep + step) * inside(other, along, deep);
                    // rows count from the bottom: the piece below ends where the other's tab begins
                    double_below += inside(one, deep, along) * inside(other, deep + step, along);
                }
            EXPECT_LT(double_beside, 500);
            EXPECT_LT(double_below, 500);
        }
}
