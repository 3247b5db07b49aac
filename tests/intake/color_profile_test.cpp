#include "intake/color_profile.h"

#include "decode/colors.h"

#include <gtest/gtest.h>

namespace {

constexpr std::array<chromaticity, 3> screen{
    {{.x = 0.64, .y = 0.33}, {.x = 0.30, .y = 0.60}, {.x = 0.15, .y = 0.06}}};
constexpr std::array<chromaticity, 3> phone{
    {{.x = 0.680, .y = 0.320}, {.x = 0.265, .y = 0.690}, {.x = 0.150, .y = 0.060}}};

bool counts(const std::string & profile)
{
    return is_srgb(bytes_of_text(profile));
}

samples one_pixel(sample_model model, std::vector<std::uint8_t> values, const std::string & profile = {})
{
    return {
        .size = {.width = 1, .height = 1}, .model = model, .values = std::move(values), .profile = profile};
}

}  // namespace

TEST(color_profile, knows_srgb_by_its_colors)
{
    EXPECT_TRUE(counts(made_profile(screen, light_curve::srgb)));
    EXPECT_FALSE(counts(made_profile(screen, light_curve::linear)));
    EXPECT_FALSE(counts(made_profile(screen, light_curve::gamma_28)));
    EXPECT_FALSE(counts(made_profile(phone, light_curve::srgb)));
    EXPECT_FALSE(counts(adobe_rgb_profile()));
}

TEST(color_profile, takes_nothing_damaged_for_srgb)
{
    const std::string profile = made_profile(screen, light_curve::srgb);
    EXPECT_FALSE(counts(""));
    for (std::size_t length = 0; length < profile.size(); length += 7)
        counts(profile.substr(0, length));
    EXPECT_FALSE(counts(profile.substr(0, 200)));
}

TEST(colors, leaves_pixels_without_a_profile_as_they_are)
{
    EXPECT_EQ(in_srgb(one_pixel(sample_model::rgb, {10, 200, 30})).values,
              (std::vector<std::uint8_t>{10, 200, 30}));
    EXPECT_EQ(in_srgb(one_pixel(sample_model::grey, {77})).values, (std::vector<std::uint8_t>{77, 77, 77}));
}

TEST(colors, takes_inks_without_a_profile_for_what_they_leave)
{
    EXPECT_EQ(in_srgb(one_pixel(sample_model::cmyk, {0, 255, 255, 0})).values,
              (std::vector<std::uint8_t>{255, 0, 0}));
    EXPECT_EQ(in_srgb(one_pixel(sample_model::cmyk_inverted, {255, 0, 0, 255})).values,
              (std::vector<std::uint8_t>{255, 0, 0}));
    EXPECT_EQ(in_srgb(one_pixel(sample_model::cmyk, {0, 0, 0, 255})).values,
              (std::vector<std::uint8_t>{0, 0, 0}));
}

TEST(colors, passes_over_a_profile_of_other_colors_than_the_picture_has)
{
    EXPECT_EQ(in_srgb(one_pixel(sample_model::grey, {77}, adobe_rgb_profile())).values,
              (std::vector<std::uint8_t>{77, 77, 77}));
    EXPECT_EQ(in_srgb(one_pixel(sample_model::rgb, {1, 2, 3}, "no profile")).values,
              (std::vector<std::uint8_t>{1, 2, 3}));
}

TEST(colors, makes_wide_colors_stronger)
{
    const std::vector<std::uint8_t> values =
        in_srgb(one_pixel(sample_model::rgb, {200, 60, 40}, adobe_rgb_profile())).values;
    EXPECT_GT(values[0], 220);
    EXPECT_LT(values[2], 40);
}
