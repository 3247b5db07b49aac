#include "decode/upright.h"

#include <cstring>
#include <limits>

namespace {

// A sample laid on white by its alpha, rounded.
template <typename Sample>
Sample laid(Sample value, Sample alpha)
{
    constexpr std::uint64_t white = std::numeric_limits<Sample>::max();
    return static_cast<Sample>((value * std::uint64_t{alpha} + white * (white - alpha) + white / 2) / white);
}

template <typename Sample>
void lay_on_white(const samples & from, samples & to)
{
    const auto colors = static_cast<std::size_t>(samples_a_pixel(to.model));
    const auto * source = reinterpret_cast<const Sample *>(from.values.data());
    auto * target = reinterpret_cast<Sample *>(to.values.data());
    const std::size_t pixels = to.values.size() / sizeof(Sample) / colors;
    for (std::size_t i = 0; i < pixels; ++i, source += colors + 1, target += colors)
        for (std::size_t c = 0; c < colors; ++c)
            target[c] = laid(source[c], source[colors]);
}

// The pixel of the picture that lies at (x, y) of the upright one, by Exif's orientations.
struct place {
    std::size_t x, y;
};
place source_of(place upright, int orientation, std::size_t width, std::size_t height)
{
    const auto [x, y] = upright;
    switch (orientation) {
        case 2:
            return {width - 1 - x, y};
        case 3:
            return {width - 1 - x, height - 1 - y};
        case 4:
            return {x, height - 1 - y};
        case 5:
            return {y, x};
        case 6:
            return {y, height - 1 - x};
        case 7:
            return {width - 1 - y, height - 1 - x};
        case 8:
            return {width - 1 - y, x};
        default:
            return upright;
    }
}

}  // namespace

samples on_white(samples picture)
{
    if (picture.model != sample_model::grey_alpha && picture.model != sample_model::rgb_alpha)
        return picture;
    samples flat = made_samples(
        picture.size, picture.model == sample_model::rgb_alpha ? sample_model::rgb : sample_model::grey,
        picture.bytes_each);
    flat.profile = std::move(picture.profile);
    flat.orientation = picture.orientation;
    flat.taken = std::move(picture.taken);
    if (picture.bytes_each == 2)
        lay_on_white<std::uint16_t>(picture, flat);
    else
        lay_on_white<std::uint8_t>(picture, flat);
    return flat;
}

samples upright(samples picture)
{
    if (picture.orientation <= 1 || picture.orientation > 8)
        return picture;
    const bool on_its_side = picture.orientation >= 5;
    const picture_size size =
        on_its_side ? picture_size{.width = picture.size.height, .height = picture.size.width} : picture.size;
    samples turned = made_samples(size, picture.model, picture.bytes_each);
    const auto width = static_cast<std::size_t>(picture.size.width),
               height = static_cast<std::size_t>(picture.size.height);
    const std::size_t pixel_bytes = picture.values.size() / (width * height);
    std::uint8_t * target = turned.values.data();
    for (std::size_t y = 0; y < static_cast<std::size_t>(size.height); ++y)
        for (std::size_t x = 0; x < static_cast<std::size_t>(size.width); ++x, target += pixel_bytes) {
            const place from = source_of({x, y}, picture.orientation, width, height);
            std::memcpy(target, &picture.values[(from.y * width + from.x) * pixel_bytes], pixel_bytes);
        }
    turned.profile = std::move(picture.profile);
    turned.taken = std::move(picture.taken);
    return turned;
}
