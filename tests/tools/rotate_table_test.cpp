#include "support/files/profile.h"
#include "support/files/text_file.h"
#include "tools/rotate_table/table_search.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

const profile & supplied_table()
{
    static const profile table(SEED_FOLDER "/rotate.ini");
    return table;
}

rotation_numbers supplied(lying photo, int rotation)
{
    rotation_numbers numbers;
    for (const rotation_key & key : rotation_keys)
        numbers.*key.number = std::stoi(supplied_table().value(section_of(photo, rotation), key.name, "0"));
    return numbers;
}

template <typename Check>
void for_each_section(Check check)
{
    for (lying photo : {lying::landscape, lying::portrait})
        for (int rotation = -90; rotation <= 90; rotation += 5)
            if (rotation != 0)
                check(photo, rotation);
}

double length(const picture_point & error)
{
    return std::hypot(error.x, error.y);
}

}  // namespace

TEST(rotate_table, supplies_all_numbers_of_all_rotations)
{
    for_each_section([](lying photo, int rotation) {
        for (const rotation_key & key : rotation_keys)
            EXPECT_NE(supplied_table().value(section_of(photo, rotation), key.name), "")
                << section_of(photo, rotation) << " " << key.name;
        const rotation_numbers numbers = supplied(photo, rotation);
        EXPECT_EQ(numbers.paste_left, numbers.grab_left);
        EXPECT_EQ(numbers.paste_top, numbers.grab_top);
        EXPECT_EQ(numbers.copy_right - numbers.copy_left, numbers.grab_width);
        EXPECT_EQ(numbers.copy_bottom - numbers.copy_top, numbers.grab_height);
    });
}

TEST(rotate_table, holds_photo_frame_and_shadow_at_every_size)
{
    for_each_section([](lying photo, int rotation) {
        EXPECT_TRUE(holds_all(supplied(photo, rotation), photo, rotation)) << section_of(photo, rotation);
    });
}

TEST(rotate_table, errs_by_less_than_three_pixels_at_every_size)
{
    for_each_section([](lying photo, int rotation) {
        const rotation_numbers numbers = supplied(photo, rotation);
        for (const scaling & used : usual_scalings()) {
            EXPECT_LT(length(corner_error(numbers, rotation, used)), 3) << section_of(photo, rotation);
            EXPECT_LT(length(ground_error(numbers, rotation, used)), 5) << section_of(photo, rotation);
        }
    });
}

TEST(rotate_table, is_what_the_search_finds)
{
    EXPECT_EQ(supplied(lying::portrait, -45), searched_numbers(lying::portrait, -45));
}

TEST(rotate_table, follows_the_geometry_of_the_turn)
{
    // At 30 degrees, from the angle alone: the search may move each number by a few pixels.
    const rotation_numbers numbers = supplied(lying::landscape, 30);
    EXPECT_NEAR(numbers.grab_left, 460 * 0.5 + 65 * 0.866, 20);
    EXPECT_NEAR(numbers.grab_top, 65 * 0.866 + 65 * 0.5, 20);
    EXPECT_NEAR(numbers.copy_left, numbers.grab_height * 0.866 / 2, 5);
    EXPECT_NEAR(numbers.copy_top, numbers.grab_width * 0.866 / 2, 5);
    EXPECT_NEAR(numbers.put_left, numbers.grab_left * 0.866 + numbers.grab_top * 0.5, 5);
    EXPECT_NEAR(numbers.put_top,
                numbers.grab_top * 0.866 - numbers.grab_left * 0.5 + numbers.grab_width * 0.5, 5);
}

TEST(rotate_table, ends_its_lines_as_the_platforms_profiles_do)
{
    const std::string text = read_file(SEED_FOLDER "/rotate.ini");
    std::size_t ends = 0;
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
        ASSERT_GT(at, 0U);
        EXPECT_EQ(text[at - 1], '\r');
        ++ends;
    }
    EXPECT_GT(ends, 72U * 13);
}
