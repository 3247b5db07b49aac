#include "engine/place_loop.h"

#include "engine/layout/worn_ornaments.h"
#include "engine/photo/fixed_picture.h"
#include "engine/photo/lay_photo.h"
#include "engine/photo/photo_steps.h"
#include "engine/photo/pick_matching.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"

#include <optional>
#include <utility>

namespace {

// What a location is filled with.
struct picked_picture {
    bitmap image;
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

picked_picture picked(bitmap image, int index = -1)
{
    const bool found = static_cast<bool>(image);
    return {.image = std::move(image), .found = found, .index = index};
}

picked_picture fixed_picture(frmMain & main, const std::string & file)
{
    const std::optional<std::string> path = fixed_picture_path(main, file);
    return path ? picked(load_photo(main, *path)) : picked_picture{};
}

picked_picture photo_at(frmMain & main, const location & place, int index)
{
    const std::string & path = main.table[index];
    // A painted shape needs a photo that could be loaded and nothing of its pixels.
    picked_picture found =
        is_painted(main, place)
            ? picked_picture{.image = {}, .found = usable_jpeg_size(path).has_value(), .index = index}
            : picked(load_photo(main, path), index);
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
    matched_photo match = pick_matching(main, place.width, place.height);
    if (match.image)
        return picked(std::move(match.image), match.index);
    main.run.match_active = false;
    photo = 0;
    return next_photo(main, place, photo);
}

picked_picture picture_for(frmMain & main, const location & place, int & photo)
{
    if (is_fixed(place))
        return fixed_picture(main, place.file);
    return main.run.match_active ? matching_photo(main, place, photo) : next_photo(main, place, photo);
}

// The photo that the locations from this one on will take first, as far as can be told.
std::optional<int> upcoming_photo(frmMain & main, int from, int photo)
{
    const location_table & table = main.design_locations;
    for (int i = from; i <= table.count; ++i) {
        const location & place = table[i];
        if (is_fixed(place) || is_painted(main, place))
            continue;
        return main.run.match_active ? photo_to_match(main, place.width, place.height) : photo;
    }
    return std::nullopt;
}

void read_upcoming(frmMain & main, int from, int photo)
{
    const std::optional<int> next = upcoming_photo(main, from, photo);
    if (next && *next <= main.table.last_photo)
        read_ahead(main, main.table[*next]);
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

void draw_place(frmMain & main, const location & place, picked_picture picked_one, int & photo)
{
    const photo_place at = drawn_place(main, place);
    if (main.chkCaption.ticked())
        lay_card(main, picked_one.image, at);
    else
        lay_photo(main, std::move(picked_one.image), at);
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
        // A painted shape gives its photo back once it is drawn.
        read_upcoming(main, i + 1, is_painted(main, place) ? photo - 1 : photo);
        if (is_drawn(main, place, std::move(next), photo))
            return true;
    }
}

}  // namespace

void place_loop(frmMain & main, const sign_of_life & sign)
{
    location_table & table = main.design_locations;
    table.count = narrow(table.count - 1);
    int photo = 0;
    for (int i = 0; i <= table.count && !main.run.cancel_requested; ++i) {
        fire(sign);
        if (!is_fixed(table[i]))
            main.run.image_number = narrow(main.run.image_number + 1);
        if (!is_filled(main, i, photo))
            break;
    }
    main.picSample.show(true);
}
