#include "engine/pixels/soft_edge_paste.h"

#include "engine/pixels/rectangles.h"
#include "engine/pixels/soft_classes.h"
#include "support/numbers.h"

#include <algorithm>
#include <vector>

namespace {

/// Alpha of the ring whose middle lies `i` pixels of the layout outside the core. Of the widest class the
/// last one would come out as -1, which the library takes for an opaque line.
int ring_alpha(const soft_class & edge, double i)
{
    return std::max(nearest(255 - i * edge.step), 0);
}

/// The outermost pixels of an area, each in one strip: laid twice, the corners would show as a thin line from
/// ring to ring.
std::vector<rectangle> strips_of(const rectangle & area)
{
    if (area.width < 1 || area.height < 1)
        return {};
    if (area.width == 1 || area.height == 1)
        return {area};
    const int inner = area.width - 2;
    std::vector<rectangle> strips{
        {.left = area.left, .top = area.top, .width = 1, .height = area.height},
        {.left = area.right() - 1, .top = area.top, .width = 1, .height = area.height}};
    if (inner > 0) {
        strips.push_back({.left = area.left + 1, .top = area.top, .width = inner, .height = 1});
        strips.push_back({.left = area.left + 1, .top = area.bottom() - 1, .width = inner, .height = 1});
    }
    return strips;
}

/// A photo with its soft edge, in drawn pixels.
struct soft_photo {
    rectangle part;           ///< of the photo's bitmap
    int rings = 0;            ///< around the core
    std::vector<int> alphas;  ///< of the pixels that stand so far from the nearest side; then the core's
};

soft_photo soft_photo_at(const rectangle & place, int scale)
{
    const soft_class edge = soft_class_of(std::min(place.width, place.height));
    soft_photo made{
        .part = {.left = 0, .top = 0, .width = place.width * scale, .height = place.height * scale},
        .rings = edge.feather * scale,
        .alphas = {}};
    for (int i = made.rings; i >= 1; --i)
        made.alphas.push_back(ring_alpha(edge, (i - 0.5) / scale + 0.5));
    made.alphas.push_back(plain_copy);
    return made;
}

void lay_span(std::span<const pixel> photo, std::span<pixel> target, int alpha)
{
    const std::span<const std::uint8_t> above = channels(photo);
    const std::span<std::uint8_t> below = channels(target);
    if (alpha == plain_copy)
        std::ranges::copy(above, below.begin());
    else
        std::ranges::transform(below, above, below.begin(), [alpha](std::uint8_t lower, std::uint8_t upper) {
            return blended(lower, upper, alpha);
        });
}

/// A row that stands so far from the nearer of top and bottom: the outer rings' pixels at its ends, its own
/// ring or the core between them.
void lay_row(const soft_photo & soft, int away, std::span<const pixel> photo, std::span<pixel> target)
{
    const std::size_t width = target.size();
    const std::size_t ends = std::min(static_cast<std::size_t>(std::min(away, soft.rings)), width / 2);
    for (std::size_t i = 0; i < ends; ++i)
        for (const std::size_t x : {i, width - 1 - i})
            lay_span(photo.subspan(x, 1), target.subspan(x, 1), soft.alphas[i]);
    const std::size_t inner = width - 2 * ends;
    lay_span(photo.subspan(ends, inner), target.subspan(ends, inner), soft.alphas[ends]);
}

void lay_rows(const soft_photo & soft, const bitmap & photo, bitmap & target, position at)
{
    const int height = soft.part.height;
    const auto left = static_cast<std::size_t>(at.left), width = static_cast<std::size_t>(soft.part.width);
    for (int y = 0; y < height; ++y)
        lay_row(soft, std::min(y, height - 1 - y), photo.row(photo.height() - 1 - y).first(width),
                target.row(target.height() - 1 - at.top - y).subspan(left, width));
}

/// Each ring in strips, of which those that leave the target or the photo are refused.
void lay_strips(const soft_photo & soft, const bitmap & photo, bitmap & target, position at)
{
    const auto lay = [&](const rectangle & area, int alpha) {
        paste_rectangle(target, photo, area, {.left = at.left + area.left, .top = at.top + area.top}, alpha);
    };
    const rectangle core = grown(soft.part, -soft.rings);
    if (core.width > 0 && core.height > 0)
        lay(core, plain_copy);
    for (int inset = soft.rings - 1; inset >= 0; --inset)
        for (const rectangle & strip : strips_of(grown(soft.part, -inset)))
            lay(strip, soft.alphas[static_cast<std::size_t>(inset)]);
}

}  // namespace

void soft_edge_paste(bitmap & target, const bitmap & image, const rectangle & place, int scale)
{
    const soft_photo soft = soft_photo_at(place, scale);
    const rectangle laid = enlarged(place, scale);
    const position at{.left = laid.left, .top = laid.top};
    if (holds(image, soft.part) && holds(target, laid))
        lay_rows(soft, image, target, at);
    else
        lay_strips(soft, image, target, at);
}
