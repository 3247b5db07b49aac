#pragma once

#include "decode/samples.h"

#include <array>

/// The picture in sRGB, three samples of 8 bits a pixel; its profile, where it has one that fits, is applied
/// as a print dialog would, perceptually. It must not be transparent any more. A profile that is damaged, or
/// of other colours than the picture has, counts as none.
samples in_srgb(samples picture);

/// A profile made of the chromaticities (x, y) of red, green and blue under daylight (D65), and of the
/// curve's kind.
enum class light_curve : std::uint8_t { srgb, video, gamma_22, adobe, gamma_28, linear };
struct chromaticity {
    double x = 0, y = 0;
};
std::string made_profile(const std::array<chromaticity, 3> & primaries, light_curve curve);

/// The profile that files without one mean by Adobe RGB.
std::string adobe_rgb_profile();
