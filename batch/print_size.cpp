#include "batch/print_size.h"

#include "support/jpeg_density.h"
#include "support/platform_error.h"

#include <cstdio>

namespace {

constexpr int printers_dpi = 300;
constexpr std::uint64_t width = 2000, height = 3000;
constexpr std::uint64_t widest_bleed = 430;  // on each side
constexpr std::uint64_t bytes_a_pixel = 3;
constexpr std::uint64_t without_any = 400'000'000;  // what a poster takes that isn't enlarged

std::string gigabytes(std::uint64_t bytes)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.1f GB", static_cast<double>(bytes) / 1e9);
    return text;
}

}  // namespace

render_scale drawn_scale(const batch_arguments & arguments)
{
    return {.poster = arguments.scale.value_or(1), .samples = arguments.smooth ? 2 : 1};
}

std::uint64_t memory_for(const render_scale & scale)
{
    const auto drawn = static_cast<std::uint64_t>(scale.canvas()),
               kept = static_cast<std::uint64_t>(scale.poster);
    const std::uint64_t canvas =
        (width + 2 * widest_bleed) * (height + 2 * widest_bleed) * drawn * drawn * bytes_a_pixel;
    // The poster beside its canvas, then its file beside the poster.
    const std::uint64_t poster = width * height * kept * kept * bytes_a_pixel;
    // A large photo on its way there, and what it is drawn from.
    const std::uint64_t photos = width * height * drawn * drawn * bytes_a_pixel;
    return without_any + canvas + poster + photos;
}

void check_memory(const render_scale & scale, std::uint64_t available)
{
    const std::uint64_t needed = memory_for(scale);
    if (scale.canvas() == 1 || needed <= available)
        return;
    const bool smooth = scale.samples > 1, larger = scale.poster > 1;
    const std::string less = larger && smooth ? "A smaller --scale, or none of --smooth, takes less."
                             : larger         ? "A smaller --scale takes less."
                                              : "Without --smooth it takes less.";
    throw platform_error(error_number::out_of_memory,
                         "The poster would be drawn with " +
                             std::to_string(width * static_cast<unsigned>(scale.canvas())) + " by " +
                             std::to_string(height * static_cast<unsigned>(scale.canvas())) +
                             " pixels, which takes about " + gigabytes(needed) + " of memory; there are " +
                             gigabytes(available) + ". " + less);
}

std::optional<int> asked_dpi(const batch_arguments & arguments)
{
    return arguments.dpi || !arguments.scale ? arguments.dpi : printers_dpi;
}

std::string with_asked_dpi(std::string jpeg, const batch_arguments & arguments)
{
    const std::optional<int> dpi = asked_dpi(arguments);
    return dpi ? with_density(std::move(jpeg), *dpi) : jpeg;
}
