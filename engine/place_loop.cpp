#include "engine/place_loop.h"

#include "engine/layout/worn_ornaments.h"
#include "engine/photo/fixed_picture.h"
#include "engine/photo/lay_photo.h"
#include "engine/photo/look_at_files.h"
#include "engine/photo/photo_steps.h"
#include "engine/photo/pick_matching.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"
#include "support/for_now.h"

#include <optional>
#include <utility>
#include <vector>

namespace {

// What a location is filled with.
struct picked_picture {
    run_photo photo;
    bool found = false;
    bool moved_on = false;  // the next location takes the next photo
    int index = -1;         // in the table of photos; -1: a fixed picture
};

bool is_shape(const location & place)
{
    return place.height == 0 || place.width == 0;
}

bool is_fixed(const location & place)
{
    return !place.file.empty() && !is_shape(place);
}

// A shape that is painted and shows nothing of a photo.
bool is_painted(const frmMain & main, const location & place)
{
    return is_shape(place) && place.spare != 0 && place.rotation == 0 && !main.chkCaption.ticked();
}

// The place as it is to be drawn. Only a shape has a mask and a colour.
photo_place drawn_place(const frmMain & main, const location & place)
{
    return {.area = {.left = place.left, .top = place.top, .width = place.width, .height = place.height},
            .rotation = place.rotation,
            .worn = worn_at(main, place, place.rotation),
            .mask = place.file,
            .shape_color = is_shape(place) ? place.spare : 0};
}

place_of_photo fitted_to(const frmMain & main, const location & place)
{
    return [&main, at = drawn_place(main, place)](picture_size own) { return fitted_size(main, at, own); };
}

picked_picture picked(run_photo photo, int index = -1)
{
    const bool found = static_cast<bool>(photo);
    return {.photo = std::move(photo), .found = found, .index = index};
}

picked_picture fixed_picture(frmMain & main, const location & place)
{
    const std::optional<std::string> path = fixed_picture_path(main, place.file);
    return path ? picked(load_photo(main, *path, fitted_to(main, place))) : picked_picture{};
}

picked_picture photo_at(frmMain & main, const location & place, int index)
{
    const std::string & path = main.table[index];
    // A painted shape needs a photo that could be loaded and nothing of its pixels.
    picked_picture found =
        is_painted(main, place)
            ? picked_picture{.photo = {}, .found = size_of_photo(main, path).has_value(), .index = index}
            : picked(load_photo(main, path, fitted_to(main, place)), index);
    found.moved_on = true;
    return found;
}

// Photos that can't be loaded are passed over, as long as there is another one.
picked_picture next_photo(frmMain & main, const location & place, int & photo)
{
    for (bool is_any = has_usable_photo(main); is_any;) {
        if (photo > main.table.last_photo) {
            ask_reshuffle(main);
            photo = 0;
        }
        const int index = photo++;
        if (is_left_out(main, index))
            continue;
        picked_picture next = photo_at(main, place, index);
        if (next.found)
            return next;
        leave_out(main, main.table[index]);
        is_any = has_usable_photo(main);
    }
    return {};
}

picked_picture matching_photo(frmMain & main, const location & place, int & photo)
{
    matched_photo match =
        pick_matching(main, {.width = place.width, .height = place.height}, fitted_to(main, place));
    if (match.photo)
        return picked(std::move(match.photo), match.index);
    main.run.match_active = false;
    photo = 0;
    return next_photo(main, place, photo);
}

picked_picture picture_for(frmMain & main, const location & place, int & photo)
{
    if (is_fixed(place))
        return fixed_picture(main, place);
    return main.run.match_active ? matching_photo(main, place, photo) : next_photo(main, place, photo);
}

// The locations from this one on that will take photos of the table, as many as are read at once.
std::vector<const location *> taking_photos(const frmMain & main, int from)
{
    const location_table & table = main.design_locations;
    std::vector<const location *> places;
    for (int i = from; i <= table.count && std::ssize(places) < main.workers.count(); ++i)
        if (!is_fixed(table[i]) && !is_painted(main, table[i]))
            places.push_back(&table[i]);
    return places;
}

// The photos that they will take, as far as can be told.
std::vector<int> upcoming_photos(frmMain & main, const std::vector<const location *> & places, int photo)
{
    std::vector<int> photos;
    if (main.run.match_active) {
        std::vector<picture_size> sizes;
        for (const location * place : places)
            sizes.push_back({.width = place->width, .height = place->height});
        return photos_to_match(main, sizes);
    }
    for (; photo <= main.table.last_photo && photos.size() < places.size(); ++photo)
        if (!is_left_out(main, photo))
            photos.push_back(photo);
    return photos;
}

void read_upcoming(frmMain & main, int from, int photo)
{
    const std::vector<const location *> places = taking_photos(main, from);
    const std::vector<int> photos = upcoming_photos(main, places, photo);
    std::vector<wanted_photo> next;
    for (std::size_t i = 0; i < photos.size(); ++i)
        if (std::optional<wanted_photo> wanted =
                wanted_at(main, main.table[photos[i]], fitted_to(main, *places[i])))
            next.push_back(std::move(*wanted));
    read_ahead(main, next);
}

void draw_place(frmMain & main, const location & place, picked_picture picked_one, int & photo)
{
    const photo_place at = drawn_place(main, place);
    if (main.chkCaption.ticked())
        lay_card(main, std::move(picked_one.photo), at);
    else
        lay_photo(main, std::move(picked_one.photo), at);
    if (is_painted(main, place) && picked_one.moved_on)
        --photo;
}

// False for a photo that turns out too long for the place: it is left out of the run.
bool is_drawn(frmMain & main, const location & place, picked_picture picked_one, int & photo)
{
    const int index = picked_one.index;
    try {
        draw_place(main, place, std::move(picked_one), photo);
        return true;
    } catch (const photo_too_long &) {
        if (index < 0)
            throw;
        leave_out(main, main.table[index], photo_fault::too_long);
        return false;
    }
}

// Fills location `i` with the first picture that it can take; false when there is none.
bool is_filled(frmMain & main, int i, int & photo)
{
    const location & place = main.design_locations[i];
    for (;;) {
        picked_picture next = picture_for(main, place, photo);
        if (!next.found)
            return false;
        const int index = next.index;
        // A painted shape gives its photo back once it is drawn.
        read_upcoming(main, i + 1, is_painted(main, place) ? photo - 1 : photo);
        if (is_drawn(main, place, std::move(next), photo)) {
            if (index >= 0 && !is_painted(main, place))
                main.run.photos_shown.insert(index);
            return true;
        }
    }
}

void fill_locations(frmMain & main, const sign_of_life & sign)
{
    const location_table & table = main.design_locations;
    int photo = 0;
    for (int i = 0; i <= table.count && !main.run.cancel_requested; ++i) {
        fire(sign);
        if (!is_fixed(table[i]))
            main.run.image_number = narrow(main.run.image_number + 1);
        if (!is_filled(main, i, photo))
            break;
    }
}

}  // namespace

void place_loop(frmMain & main, const sign_of_life & sign)
{
    look_anew(main);
    main.design_locations.count = narrow(main.design_locations.count - 1);
    try {
        const for_now at_once(main.run.ends_at_cancel, true);
        fill_locations(main, sign);
    } catch (const run_cancelled &) {
        forget_ahead(main);
    }
    main.picSample.show(true);
}
