#include "photos/scaled_jpeg.h"

#include "engine/pixels/covering_plan.h"
#include "support/platform_error.h"

namespace {

static_assert(jpeg_rows::room_behind >= room_behind);

// All rows are read, since a fault in one that isn't needed makes the library refuse the photo.
std::optional<bitmap> read_by_plan(jpeg_rows & photo, const scaling_plan & plan, scaling_memory & memory,
                                   const std::stop_token & stop = {})
{
    if (!is_possible(plan))
        return std::nullopt;
    row_scaler scaler(plan, memory);
    for (int y = 0; y < plan.source.height; ++y) {
        const std::span<const pixel> row = photo.next();
        if (row.empty() || stop.stop_requested())
            return std::nullopt;
        scaler.take(row);
    }
    return photo.is_sound() ? std::optional(std::move(scaler).result()) : std::nullopt;
}

std::optional<scaling_plan> plan_to_fit(picture_size photo, picture_size place)
{
    try {
        return covering_plan(photo, place.width, place.height);
    } catch (const platform_error &) {
        return std::nullopt;
    }
}

}  // namespace

std::optional<bitmap> read_rescaled_jpeg(const std::string & path, picture_size size, photo_memory & memory)
{
    jpeg_rows photo(path, memory.reading);
    return photo ? read_by_plan(photo, all_scaled(photo.size(), size), memory.scaling) : std::nullopt;
}

std::optional<bitmap> read_fitted_jpeg(const std::string & path, picture_size place, photo_memory & memory,
                                       int scale, const std::stop_token & stop)
{
    jpeg_rows photo(path, memory.reading);
    const std::optional<scaling_plan> plan = photo ? plan_to_fit(photo.size(), place) : std::nullopt;
    return plan ? read_by_plan(photo, enlarged(*plan, scale), memory.scaling, stop) : std::nullopt;
}

std::optional<bitmap> read_thumbnail(const std::string & path, picture_size size, photo_memory & memory)
{
    jpeg_rows photo(path, memory.reading);
    // The library copies a picture that keeps its size with more than its notes.
    if (!photo || (photo.size().width == size.width && photo.size().height == size.height))
        return std::nullopt;
    std::optional<bitmap> made = read_by_plan(photo, all_scaled(photo.size(), size), memory.scaling);
    return made && take_notes(*made, path) ? std::move(made) : std::nullopt;
}
