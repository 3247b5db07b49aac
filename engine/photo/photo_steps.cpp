#include "engine/photo/photo_steps.h"

#include "engine/pixels/covering_plan.h"
#include "engine/pixels/resize_image.h"
#include "photos/scaled_jpeg.h"
#include "session/frmMain.h"
#include "support/files/beside.h"
#include "support/files/paths.h"

#include <algorithm>

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

bitmap fitted(const bitmap & image, picture_size place, int scale)
{
    if (!image)
        return {};
    try {
        const scaling_plan plan = enlarged(
            covering_plan({.width = image.width(), .height = image.height()}, place.width, place.height),
            scale);
        scaling_memory memory;
        if (is_possible(plan))
            return scaled_by_rows(image, plan, memory);
        // What is larger than any canvas could show nothing there.
        return scale == 1 ? resize_image(image, place.width, place.height) : bitmap();
    } catch (const platform_error & error) {
        if (error.number != error_number::overflow)
            throw;
        throw photo_too_long(error.number, error.what());
    }
}

bitmap fitted_or_none(const bitmap & image, picture_size place, int scale)
{
    try {
        return fitted(image, place, scale);
    } catch (const photo_too_long &) {
        return {};
    }
}

run_photo whole_photo(const std::string & path)
{
    run_photo photo(loaded(path));
    photo.path = path;
    return photo;
}

// Of a kind of JPEG that can't be fitted while it is read the whole is loaded, and kept where it can't be
// fitted at all.
run_photo fitted_photo(const std::string & path, picture_size place, int scale)
{
    photo_memory memory;
    run_photo photo;
    photo.path = path;
    if (std::optional<bitmap> read = read_fitted_jpeg(path, place, memory, scale)) {
        photo.own = usable_jpeg_size(path).value_or(picture_size{});
        photo.fitted = std::move(*read);
    } else {
        photo = whole_photo(path);
        photo.fitted = fitted_or_none(photo.whole, place, scale);
        if (photo.fitted)
            photo.whole = {};
    }
    photo.place = place;
    return photo;
}

// What was begun for that very file and place; the end of the list without it.
auto found_ahead(photo_ahead & ahead, const wanted_photo & wanted, const std::optional<file_stamp> & stamp)
{
    return std::ranges::find_if(ahead.begun, [&](const photo_ahead::begun_photo & one) {
        return stamp && one.wanted == wanted && one.stamp == *stamp;
    });
}

// A guess that has gone wrong makes room; what is still being read can't be stopped.
void drop_wrong_guesses(photo_ahead & ahead, const std::vector<wanted_photo> & next)
{
    std::erase_if(ahead.begun, [&](const photo_ahead::begun_photo & one) {
        return std::ranges::find(next, one.wanted) == next.end() && is_there(one.photo);
    });
}

void begin_reading(photo_ahead & ahead, const wanted_photo & wanted, int scale)
{
    const std::optional<file_stamp> stamp = stamp_of(wanted.path);
    if (!stamp || stamp->bytes < small_file || found_ahead(ahead, wanted, stamp) != ahead.begun.end())
        return;
    ahead.begun.push_back(
        {.wanted = wanted, .stamp = *stamp, .photo = std::async(std::launch::async, [wanted, scale] {
                                                return fitted_photo(wanted.path, wanted.place, scale);
                                            })});
}

}  // namespace

std::optional<wanted_photo> wanted_at(const std::string & path, const place_of_photo & place_of)
{
    const std::optional<picture_size> own = usable_jpeg_size(path);
    try {
        return own ? std::optional(wanted_photo{.path = path, .place = place_of(*own)}) : std::nullopt;
    } catch (const platform_error &) {
        return std::nullopt;  // it will be told when it is the photo's turn
    }
}

void read_ahead(frmMain & main, const std::vector<wanted_photo> & next)
{
    photo_ahead & ahead = main.run.ahead;
    drop_wrong_guesses(ahead, next);
    for (const wanted_photo & wanted : next)
        if (std::ssize(ahead.begun) < ahead.at_once)
            begin_reading(ahead, wanted, main.run.drawn_at.canvas());
}

void forget_ahead(frmMain & main)
{
    for (const photo_ahead::begun_photo & one : main.run.ahead.begun)
        wait_for(main.desk, one.photo);
    main.run.ahead.begun.clear();
}

run_photo load_photo(frmMain & main, const std::string & path, const place_of_photo & place_of)
{
    const std::optional<file_stamp> stamp = stamp_of(path);
    const std::optional<picture_size> own = stamp ? usable_jpeg_size(path) : std::nullopt;
    if (!own || stamp->bytes < small_file)
        return whole_photo(path);
    const wanted_photo wanted{.path = path, .place = place_of(*own)};
    photo_ahead & ahead = main.run.ahead;
    const auto found = found_ahead(ahead, wanted, stamp);
    if (found == ahead.begun.end())
        return beside(main.desk, [wanted, scale = main.run.drawn_at.canvas()] {
            return fitted_photo(wanted.path, wanted.place, scale);
        });
    std::future<run_photo> photo = std::move(found->photo);
    ahead.begun.erase(found);
    return awaited(main.desk, std::move(photo));
}

bitmap fit_photo(frmMain & main, run_photo photo, int width, int height)
{
    const picture_size place{.width = width, .height = height};
    if (photo.fitted && photo.place == place)
        return std::move(photo.fitted);
    if (!photo.whole && photo)
        photo.whole = beside(main.desk, [path = photo.path] { return loaded(path); });
    return done_where(is_small(photo.whole), main,
                      [&] { return fitted(photo.whole, place, main.run.drawn_at.canvas()); });
}

void save_photo(frmMain & main, const bitmap & image, const std::string & path)
{
    done_where(is_small(image), main, [&] { save_jpeg(image, path); });
}
