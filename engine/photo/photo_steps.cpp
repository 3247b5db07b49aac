#include "engine/photo/photo_steps.h"

#include "engine/pixels/covering_plan.h"
#include "engine/pixels/resize_image.h"
#include "session/frmMain.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/jpeg_rows.h"

namespace {

// A thumbnail is done before another core has woken up.
constexpr std::int64_t small_file = 200'000;  // bytes
constexpr int small_picture = 500'000;        // pixels

bool is_small(const bitmap & image)
{
    return !image || image.width() * image.height() < small_picture;
}

template <typename Step>
auto done_where(bool is_small, frmMain & main, Step step)
{
    return is_small ? step() : beside(main.desk, std::move(step));
}

bitmap loaded(const std::string & path)
{
    if (!usable_jpeg_size(path))
        return {};
    jpeg_memory memory;
    std::optional<bitmap> image = read_jpeg(path, memory);
    return image ? std::move(*image) : load_picture(picture_format::jpeg, path);
}

bitmap fitted(const bitmap & image, int width, int height)
{
    if (!image)
        return {};
    try {
        const scaling_plan plan =
            covering_plan({.width = image.width(), .height = image.height()}, width, height);
        scaling_memory memory;
        return is_possible(plan) ? scaled_by_rows(image, plan, memory) : resize_image(image, width, height);
    } catch (const platform_error & error) {
        if (error.number != error_number::overflow)
            throw;
        throw photo_too_long(error.number, error.what());
    }
}

bool is_busy(const photo_ahead & ahead)
{
    return ahead.image.valid() &&
           ahead.image.wait_for(std::chrono::seconds::zero()) != std::future_status::ready;
}

bool holds(const photo_ahead & ahead, const std::string & path, const file_stamp & stamp)
{
    return ahead.image.valid() && ahead.path == path && ahead.stamp == stamp;
}

}  // namespace

void read_ahead(frmMain & main, const std::string & path)
{
    photo_ahead & ahead = main.run.ahead;
    const std::optional<file_stamp> stamp = stamp_of(path);
    if (!ahead.is_on || !stamp || stamp->bytes < small_file || is_busy(ahead) || holds(ahead, path, *stamp))
        return;
    ahead.path = path;
    ahead.stamp = *stamp;
    ahead.image = std::async(std::launch::async, [path] { return loaded(path); });
}

void forget_ahead(frmMain & main)
{
    std::future<bitmap> dropped = std::move(main.run.ahead.image);
    if (dropped.valid())
        wait_for(main.desk, dropped);
}

bitmap load_photo(frmMain & main, const std::string & path)
{
    const std::optional<file_stamp> stamp = stamp_of(path);
    photo_ahead & ahead = main.run.ahead;
    if (stamp && holds(ahead, path, *stamp))
        return awaited(main.desk, std::move(ahead.image));
    return done_where(!stamp || stamp->bytes < small_file, main, [&] { return loaded(path); });
}

bitmap fit_photo(frmMain & main, const bitmap & image, int width, int height)
{
    return done_where(is_small(image), main, [&] { return fitted(image, width, height); });
}

void save_photo(frmMain & main, const bitmap & image, const std::string & path)
{
    done_where(is_small(image), main, [&] { save_jpeg(image, path); });
}
