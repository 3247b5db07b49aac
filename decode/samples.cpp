#include "decode/samples.h"

int samples_a_pixel(sample_model model)
{
    switch (model) {
        case sample_model::grey:
            return 1;
        case sample_model::grey_alpha:
            return 2;
        case sample_model::rgb:
            return 3;
        default:
            return 4;
    }
}

namespace {

constexpr std::int64_t most_pixels = TESSALOOM_MOST_PIXELS;

}  // namespace

void expect_usable(std::int64_t width, std::int64_t height)
{
    if (width <= 0 || height <= 0)
        throw decode_fault::damaged;
    if (width > longest_side || height > longest_side || width * height > most_pixels)
        throw decode_fault::too_large;
}

samples made_samples(picture_size size, sample_model model, int bytes_each)
{
    expect_usable(size.width, size.height);
    samples made{.size = size, .model = model, .bytes_each = bytes_each};
    made.values.resize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) *
                       static_cast<std::size_t>(samples_a_pixel(model) * bytes_each));
    return made;
}
