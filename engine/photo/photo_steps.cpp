#include "engine/photo/photo_steps.h"

#include "engine/photo/look_at_files.h"
#include "engine/pixels/covering_plan.h"
#include "engine/pixels/resize_image.h"
#include "photos/scaled_jpeg.h"
#include "session/frmMain.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int small_picture = 500'000;  // pixels; with one thumbnail and all photos of a preview below it

bool is_small(picture_size size)
{
    return size.width * size.height < small_picture;
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
        const scaling_plan plan = enlarged(covering_plan(image.size(), place.width, place.height), scale);
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

run_photo whole_and_fitted(const wanted_photo & wanted)
{
    run_photo photo(loaded(wanted.path));
    photo.fitted = fitted_or_none(photo.whole, wanted.place, wanted.scale);
    return photo;
}

// Of a kind of JPEG that can't be fitted while it is read the whole is loaded, and kept where it can't be
// fitted at all.
run_photo fitted_photo(const wanted_photo & wanted, picture_size own, const std::stop_token & stop)
{
    photo_memory memory;
    run_photo photo;
    photo.own = own;
    if (std::optional<bitmap> read =
            read_fitted_jpeg(wanted.path, wanted.place, memory, wanted.scale, stop)) {
        photo.fitted = std::move(*read);
    } else if (!stop.stop_requested()) {
        photo = whole_and_fitted(wanted);
        if (photo.fitted)
            photo.whole = {};
    }
    return photo;
}

// What a worker does. The photo may not be any more what it was when it was looked at.
read_photo read_to_fit(const wanted_photo & wanted, const known_file & known, const std::stop_token & stop)
{
    read_photo read{.photo = {}, .stamp = stamp_of(wanted.path)};
    const bool is_same = read.stamp == known.stamp;
    if (const std::optional<picture_size> own = is_same ? known.size : usable_jpeg_size(wanted.path))
        read.photo = is_small(*own) ? whole_and_fitted(wanted) : fitted_photo(wanted, *own, stop);
    read.photo.path = wanted.path;
    read.photo.place = wanted.place;
    if (stamp_of(wanted.path) != read.stamp)
        read.stamp.reset();
    return read;
}

wanted_photo wanted_for(const frmMain & main, const std::string & path, picture_size place)
{
    return {.path = path, .place = place, .scale = main.run.drawn_at.canvas()};
}

auto found_ahead(photo_ahead & ahead, const wanted_photo & wanted)
{
    return std::ranges::find(ahead.begun, wanted, &photo_ahead::begun_photo::wanted);
}

void drop_wrong_guesses(photo_ahead & ahead, const std::vector<wanted_photo> & next)
{
    std::erase_if(ahead.begun, [&](photo_ahead::begun_photo & one) {
        const bool wrong = std::ranges::find(next, one.wanted) == next.end();
        if (wrong)
            one.stop.request_stop();
        return wrong;
    });
}

void begin_reading(frmMain & main, const wanted_photo & wanted)
{
    std::stop_source stop;
    auto photo = main.workers.begin([wanted, known = file_of(main, wanted.path), token = stop.get_token()] {
        return read_to_fit(wanted, known, token);
    });
    main.run.ahead.begun.push_back({.wanted = wanted, .stop = std::move(stop), .photo = std::move(photo)});
}

// What is read ahead has to be what lies there when the photo is drawn.
std::optional<read_photo> taken_from_ahead(frmMain & main, const wanted_photo & wanted)
{
    const auto found = found_ahead(main.run.ahead, wanted);
    if (found == main.run.ahead.begun.end())
        return std::nullopt;
    photo_ahead::begun_photo begun = std::move(*found);
    main.run.ahead.begun.erase(found);
    read_photo read = awaited_in_run(main, std::move(begun.photo), std::move(begun.stop));
    const auto stamp =
        awaited_in_run(main, main.workers.begin_at_once([path = wanted.path] { return stamp_of(path); }));
    return stamp == read.stamp ? std::optional(std::move(read)) : std::nullopt;
}

read_photo photo_read(frmMain & main, const wanted_photo & wanted)
{
    if (std::optional<read_photo> read = taken_from_ahead(main, wanted))
        return std::move(*read);
    std::stop_source stop;
    auto photo =
        main.workers.begin_at_once([wanted, known = file_of(main, wanted.path), token = stop.get_token()] {
            return read_to_fit(wanted, known, token);
        });
    return awaited_in_run(main, std::move(photo), std::move(stop));
}

// ---- what stays from one preview to the next

small_photo_key key_of(const wanted_photo & wanted, const known_file & known)
{
    return {.path = wanted.path, .stamp = known.stamp.value_or(file_stamp{}), .place = wanted.place};
}

small_photo_key key_of_whole(const wanted_photo & wanted, const known_file & known)
{
    return {.path = wanted.path, .stamp = known.stamp.value_or(file_stamp{}), .place = {}};
}

bool is_shelved(frmMain & main, const wanted_photo & wanted, const known_file & known)
{
    return main.in_preview && (main.run.small.find(key_of(wanted, known)) != nullptr ||
                               main.run.small.find(key_of_whole(wanted, known)) != nullptr);
}

void keep_if_small(frmMain & main, const small_photo_key & key, const bitmap & image)
{
    if (image && is_small(image.size()))
        main.run.small.keep(key, copied(image));
}

void keep_for_previews(frmMain & main, const wanted_photo & wanted, const known_file & known,
                       const run_photo & photo)
{
    if (!main.in_preview)
        return;
    keep_if_small(main, key_of_whole(wanted, known), photo.whole);
    keep_if_small(main, key_of(wanted, known), photo.fitted);
}

std::optional<run_photo> photo_from_shelf(frmMain & main, const wanted_photo & wanted,
                                          const known_file & known)
{
    if (!is_shelved(main, wanted, known))
        return std::nullopt;
    run_photo photo;
    photo.path = wanted.path;
    photo.own = known.size.value_or(picture_size{});
    photo.place = wanted.place;
    if (const bitmap * const there = main.run.small.find(key_of(wanted, known))) {
        photo.fitted = copied(*there);
    } else {
        photo.whole = copied(*main.run.small.find(key_of_whole(wanted, known)));
        photo.fitted = fitted_or_none(photo.whole, wanted.place, wanted.scale);
        keep_if_small(main, key_of(wanted, known), photo.fitted);
    }
    return photo;
}

}  // namespace

std::optional<wanted_photo> wanted_at(frmMain & main, const std::string & path,
                                      const place_of_photo & place_of)
{
    const known_file & known = file_of(main, path);
    const std::string & file = known.stand_in.empty() ? path : known.stand_in;
    try {
        return known.size ? std::optional(wanted_for(main, file, place_of(*known.size))) : std::nullopt;
    } catch (const platform_error &) {
        return std::nullopt;  // it will be told when it is the photo's turn
    }
}

void read_ahead(frmMain & main, const std::vector<wanted_photo> & next)
{
    photo_ahead & ahead = main.run.ahead;
    drop_wrong_guesses(ahead, next);
    for (const wanted_photo & wanted : next) {
        if (std::ssize(ahead.begun) >= main.workers.count() || !main.workers.has_room())
            return;
        const known_file & known = file_of(main, wanted.path);
        if (known.size && found_ahead(ahead, wanted) == ahead.begun.end() && !is_shelved(main, wanted, known))
            begin_reading(main, wanted);
    }
}

void forget_ahead(frmMain & main)
{
    drop_wrong_guesses(main.run.ahead, {});
}

run_photo load_photo(frmMain & main, const std::string & path, const place_of_photo & place_of)
{
    constexpr int most_tries = 3;  // a file that changes all the time is taken as it is then
    for (int tries = 1;; ++tries) {
        const known_file known = file_of(main, path);
        if (!known.stand_in.empty())
            return load_photo(main, known.stand_in, place_of);
        if (!known.size) {
            run_photo none;
            none.path = path;
            return none;
        }
        const wanted_photo wanted = wanted_for(main, path, place_of(*known.size));
        if (std::optional<run_photo> photo = photo_from_shelf(main, wanted, known))
            return std::move(*photo);
        read_photo read = photo_read(main, wanted);
        if (read.stamp == known.stamp)
            keep_for_previews(main, wanted, known, read.photo);
        if (read.stamp == known.stamp || tries == most_tries)
            return std::move(read.photo);
        forget_file(main, path);
    }
}

bitmap fit_photo(frmMain & main, run_photo photo, int width, int height)
{
    const picture_size place{.width = width, .height = height};
    if (photo.fitted && photo.place == place)
        return std::move(photo.fitted);
    const int scale = main.run.drawn_at.canvas();
    if (!photo || (photo.whole && is_small(photo.whole.size())))
        return fitted(photo.whole, place, scale);
    return awaited_in_run(main, main.workers.begin_at_once([photo = std::move(photo), place, scale] {
        return photo.whole ? fitted(photo.whole, place, scale) : fitted(loaded(photo.path), place, scale);
    }));
}

void save_photo(frmMain & main, const bitmap & image, const picture_notes & notes, const std::string & path)
{
    const auto save = [&] { write_file(path, noted_picture(picture_format::jpeg, image, notes)); };
    if (is_small(image.size()))
        save();
    else
        beside(main.desk, main.workers, save);
}
