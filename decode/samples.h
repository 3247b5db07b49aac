#pragma once

#include "intake/decoder_answer.h"
#include "support/MFreeImage.h"

#include <cstdint>
#include <string>
#include <vector>

/// What the samples of a pixel stand for, in their order.
enum class sample_model : std::uint8_t {
    grey,
    grey_alpha,
    rgb,
    rgb_alpha,
    cmyk,          ///< 0 is no ink
    cmyk_inverted  ///< 0 is full ink
};

/// A picture as its file has it: rows from the top, without gaps.
struct samples {
    picture_size size;
    sample_model model = sample_model::rgb;
    int bytes_each = 1;  ///< 1, or 2 in the machine's own order
    std::vector<std::uint8_t> values{};
    std::string profile{};  ///< of its colours; empty: sRGB
    int orientation = 1;
    std::string taken{};  ///< when, as Exif has it; empty: not told
};

int samples_a_pixel(sample_model model);

/// Most pixels a side: what a collage takes.
inline constexpr int longest_side = 32'767;

/// Throws decode_fault::too_large beyond that and beyond 260 million pixels in all, and damaged for an empty
/// size.
void expect_usable(std::int64_t width, std::int64_t height);

/// Room for a picture of that size. Throws as expect_usable.
samples made_samples(picture_size size, sample_model model, int bytes_each);
