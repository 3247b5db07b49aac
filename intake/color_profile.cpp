#include "intake/color_profile.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double fixed_one = 65536.0;

double fixed_at(byte_view bytes, std::size_t at)
{
    return static_cast<std::int32_t>(number32(bytes, at, byte_order::big)) / fixed_one;
}

// The bytes of a tag; none where the profile has none of that name.
byte_view tag_of(byte_view profile, std::string_view name)
{
    constexpr std::size_t table = 128, entry_size = 12;
    const std::size_t count = std::min<std::size_t>(number32(profile, table, byte_order::big), 100);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = table + 4 + i * entry_size;
        if (stands_at(profile, at, name))
            return part(profile, number32(profile, at + 4, byte_order::big),
                        number32(profile, at + 8, byte_order::big));
    }
    return {};
}

// The curve from a channel's value to light, both 0 to 1.
double light_of_srgb(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double light_of_table(byte_view curve, std::size_t count, double value)
{
    const double place = value * static_cast<double>(count - 1);
    const auto low = static_cast<std::size_t>(place);
    const std::size_t high = std::min(low + 1, count - 1);
    const double below = number16(curve, 12 + 2 * low, byte_order::big),
                 above = number16(curve, 12 + 2 * high, byte_order::big);
    return (below + (above - below) * (place - static_cast<double>(low))) / 65535.0;
}

double light_of_formula(byte_view curve, double value)
{
    const std::uint16_t kind = number16(curve, 8, byte_order::big);
    const auto number = [&](std::size_t i) { return fixed_at(curve, 12 + 4 * i); };
    if (kind == 0)
        return std::pow(value, number(0));
    if (kind != 3 && kind != 4)
        return -1;
    const double rest = kind == 4 ? number(5) : 0, low_rest = kind == 4 ? number(6) : 0;
    return value >= number(4) ? std::pow(std::max(number(1) * value + number(2), 0.0), number(0)) + rest
                              : number(3) * value + low_rest;
}

double light_of(byte_view curve, double value)
{
    if (stands_at(curve, 0, "para"))
        return light_of_formula(curve, value);
    const std::size_t count = number32(curve, 8, byte_order::big);
    if (!stands_at(curve, 0, "curv") || 12 + 2 * count > curve.size())
        return -1;
    if (count == 0)
        return value;
    if (count == 1)
        return std::pow(value, number16(curve, 12, byte_order::big) / 256.0);
    return light_of_table(curve, count, value);
}

// Within less than a level of 255 at every level from 8 on; darker ones can't be told apart by eye.
bool is_srgb_curve(byte_view curve)
{
    for (int level = 8; level < 256; level += 8) {
        const double light = light_of(curve, level / 255.0);
        if (light < light_of_srgb((level - 0.75) / 255.0) || light > light_of_srgb((level + 0.75) / 255.0))
            return false;
    }
    return true;
}

bool is_primary(byte_view tag, const std::array<double, 3> & expected)
{
    constexpr double tolerance = 0.003;
    if (!stands_at(tag, 0, "XYZ "))
        return false;
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (std::abs(fixed_at(tag, 8 + 4 * i) - expected[i]) > tolerance)
            return false;
    return true;
}

}  // namespace

bool is_srgb(byte_view profile)
{
    if (!tag_of(profile, "A2B0").empty())
        return false;
    if (stands_at(profile, 16, "GRAY"))
        return is_srgb_curve(tag_of(profile, "kTRC"));
    // The primaries of sRGB under the light of profiles, D50.
    return stands_at(profile, 16, "RGB ") && is_primary(tag_of(profile, "rXYZ"), {0.4361, 0.2225, 0.0139}) &&
           is_primary(tag_of(profile, "gXYZ"), {0.3851, 0.7169, 0.0971}) &&
           is_primary(tag_of(profile, "bXYZ"), {0.1431, 0.0606, 0.7141}) &&
           is_srgb_curve(tag_of(profile, "rTRC")) && is_srgb_curve(tag_of(profile, "gTRC")) &&
           is_srgb_curve(tag_of(profile, "bTRC"));
}
