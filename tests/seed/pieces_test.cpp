// The pieces of the jigsaw designer, each by itself: their bevel, and that nothing of it goes astray at any
// size.
#include "support/MFreeImage.h"
#include "tests/seed/mask_parts.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace {

const std::map<std::string, bitmap> & pieces()
{
    static const std::map<std::string, bitmap> found = [] {
        std::map<std::string, bitmap> read;
        for (const auto & entry : std::filesystem::directory_iterator(BUILT_SEED "/puzzle"))
            if (entry.path().extension() == ".gif")
                read.emplace(entry.path().stem().string(),
                             load_picture(picture_format::gif, entry.path().string()));
        return read;
    }();
    return found;
}

// Of a puzzle of few pieces, of many, and of a preview.
constexpr int sizes[] = {1209, 594, 362, 89};

/// What lies at the edges of a piece, seen along the light: its first pixels and its last ones, and how many
/// pixels of the ground and of no key a black one has beside it.
struct edges {
    int first = 0, lit = 0, last = 0, dark = 0;
};

edges seen_along_the_light(const std::vector<part> & parts, int width)
{
    edges found;
    const auto across = static_cast<std::size_t>(width);
    // Rows count from the bottom: the light falls from one row to the one before.
    for (std::size_t at = across; at + 1 < parts.size(); ++at) {
        const part upper = parts[at], lower = parts[at - across + 1];
        if ((at + 1) % across == 0 || (upper == part::ground) == (lower == part::ground))
            continue;
        if (upper == part::ground) {
            ++found.first;
            found.lit += lower == part::rim ? 1 : 0;
        } else {
            ++found.last;
            found.dark += upper == part::black_key ? 1 : 0;
        }
    }
    return found;
}

}  // namespace

TEST(pieces, are_lighter_where_the_light_falls_on_them_and_black_across)
{
    for (const auto & [name, piece] : pieces())
        for (const int size : {1209, 594, 362}) {
            const edges found = seen_along_the_light(parts_of(rescaled(piece, size, size)), size);
            EXPECT_GT(found.first, size) << name;
            EXPECT_GT(found.lit, 0.95 * found.first) << name << " at " << size;
            EXPECT_GT(found.dark, 0.95 * found.last) << name << " at " << size;
        }
}

TEST(pieces, have_a_rim_or_a_shadow_all_round_but_where_one_turns_into_the_other)
{
    for (const auto & [name, piece] : pieces()) {
        const std::vector<part> parts = parts_of(piece);
        const auto across = static_cast<std::size_t>(piece.width());
        const auto touch = [&parts](std::size_t one, std::size_t other) {
            return (parts[one] == part::inside && parts[other] == part::ground) ||
                   (parts[one] == part::ground && parts[other] == part::inside);
        };
        int bare = 0;
        for (std::size_t at = across; at < parts.size(); ++at)
            bare += touch(at, at - 1) || touch(at, at - across) ? 1 : 0;
        EXPECT_LE(bare, 16) << name;
    }
}

TEST(pieces, have_no_light_speck_beyond_their_shadow)
{
    for (const auto & [name, piece] : pieces())
        for (const int size : sizes) {
            const std::vector<part> parts = parts_of(rescaled(piece, size, size));
            const auto across = static_cast<std::size_t>(size);
            int specks = 0;
            for (std::size_t at = across + 1; at + across < parts.size(); ++at)
                specks += parts[at] == part::rim && parts[at - 1] == part::black_key &&
                                  parts[at + 1] == part::ground
                              ? 1
                              : 0;
            EXPECT_LE(specks, 2) << name << " at " << size;
        }
}

TEST(pieces, hold_no_colour_that_would_be_taken_for_the_white_key)
{
    for (const auto & [name, piece] : pieces())
        for (const int size : sizes)
            EXPECT_EQ(std::ranges::count(parts_of(rescaled(piece, size, size)), part::white_key), 0)
                << name << " at " << size;
}

TEST(pieces, are_square_with_a_ground_that_turns_into_the_black_key_by_no_other_part)
{
    constexpr rgb_triple ground{255, 255, 153};
    for (const auto & [name, piece] : pieces()) {
        EXPECT_EQ(piece.width(), piece.height()) << name;
        EXPECT_EQ(pixel_at(piece, 0, 0), ground) << name;
    }
    for (std::uint8_t blue = 0; blue <= ground.blue; ++blue) {
        const part seen = part_of({255, 255, blue}, ground);
        EXPECT_TRUE(seen == part::ground || seen == part::black_key) << int{blue};
    }
}
