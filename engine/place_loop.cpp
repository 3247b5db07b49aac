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

// What a location is filled with: a photo of the table, the design's own picture, or a colour, for which a
// photo is looked at and given back.
enum class filling { photo, fixed_picture, color };

// A location as it will be drawn. All are settled before the first photo: what is read ahead and what is
// drawn are then the same.
struct planned_place {
    filling by = filling::photo;
    photo_place at;
};

using place_plan = std::vector<planned_place>;

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

filling filling_of(const frmMain & main, const location & place)
{
    if (!is_shape(place))
        return place.file.empty() ? filling::photo : filling::fixed_picture;
    const bool is_painted = place.spare != 0 && place.rotation == 0 && !main.chkCaption.ticked();
    return is_painted ? filling::color : filling::photo;
}

// Only a shape has a mask and a colour.
planned_place planned(const frmMain & main, const location & place)
{
    return {
        .by = filling_of(main, place),
        .at = {.area = {.left = place.left, .top = place.top, .width = place.width, .height = place.height},
               .rotation = place.rotation,
               .worn = worn_at(main, place, place.rotation),
               .mask = place.file,
               .shape_color = is_shape(place) ? place.spare : 0}};
}

place_plan plan_of(const frmMain & main)
{
    place_plan plan;
    for (int i = 0; i <= main.design_locations.count; ++i)
        plan.push_back(planned(main, main.design_locations[i]));
    return plan;
}

picture_size layout_size(const planned_place & place)
{
    return {.width = place.at.area.width, .height = place.at.area.height};
}

place_of_photo fitted_to(const frmMain & main, const planned_place & place)
{
    return [&main, &at = place.at](picture_size own) { return fitted_size(main, at, own); };
}

picked_picture picked(run_photo photo, int index = -1)
{
    const bool found = static_cast<bool>(photo);
    return {.photo = std::move(photo), .found = found, .index = index};
}

picked_picture fixed_picture(frmMain & main, const planned_place & place)
{
    const std::optional<std::string> path = fixed_picture_path(main, place.at.mask);
    return path ? picked(load_photo(main, *path, fitted_to(main, place))) : picked_picture{};
}

picked_picture photo_at(frmMain & main, const planned_place & place, int index)
{
    const std::string & path = main.table[index];
    // A colour needs a photo that could be loaded and nothing of its pixels.
    picked_picture found =
        place.by == filling::color
            ? picked_picture{.photo = {}, .found = size_of_photo(main, path).has_value(), .index = index}
            : picked(load_photo(main, path, fitted_to(main, place)), index);
    found.moved_on = true;
    return found;
}

// Photos that can't be loaded are passed over, as long as there is another one.
picked_picture next_photo(frmMain & main, const planned_place & place, int & photo)
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

picked_picture matching_photo(frmMain & main, const planned_place & place, int & photo)
{
    matched_photo match = pick_matching(main, layout_size(place), fitted_to(main, place));
    if (match.photo)
        return picked(std::move(match.photo), match.index);
    main.run.match_active = false;
    photo = 0;
    return next_photo(main, place, photo);
}

picked_picture picture_for(frmMain & main, const planned_place & place, int & photo)
{
    if (place.by == filling::fixed_picture)
        return fixed_picture(main, place);
    return main.run.match_active ? matching_photo(main, place, photo) : next_photo(main, place, photo);
}

// The places from this one on that will take photos of the table, as many as are read at once.
std::vector<const planned_place *> taking_photos(const frmMain & main, const place_plan & plan,
                                                 std::size_t from)
{
    std::vector<const planned_place *> places;
    for (std::size_t i = from; i < plan.size() && std::ssize(places) < main.workers.count(); ++i)
        if (plan[i].by == filling::photo)
            places.push_back(&plan[i]);
    return places;
}

// The photos that they will take, as far as can be told.
std::vector<int> upcoming_photos(frmMain & main, const std::vector<const planned_place *> & places, int photo)
{
    std::vector<int> photos;
    if (main.run.match_active) {
        std::vector<picture_size> sizes;
        for (const planned_place * place : places)
            sizes.push_back(layout_size(*place));
        return photos_to_match(main, sizes);
    }
    for (; photo <= main.table.last_photo && photos.size() < places.size(); ++photo)
        if (!is_left_out(main, photo))
            photos.push_back(photo);
    return photos;
}

void read_upcoming(frmMain & main, const std::vector<const planned_place *> & places, int photo)
{
    const std::vector<int> photos = upcoming_photos(main, places, photo);
    std::vector<wanted_photo> next;
    for (std::size_t i = 0; i < photos.size(); ++i)
        if (std::optional<wanted_photo> wanted =
                wanted_at(main, main.table[photos[i]], fitted_to(main, *places[i])))
            next.push_back(std::move(*wanted));
    read_ahead(main, next);
}

void draw_place(frmMain & main, const photo_place & at, run_photo photo)
{
    if (main.chkCaption.ticked())
        lay_card(main, std::move(photo), at);
    else
        lay_photo(main, std::move(photo), at);
}

// False for a photo that turns out too long for the place: it is left out of the run.
bool is_drawn(frmMain & main, const planned_place & place, picked_picture picked_one)
{
    try {
        draw_place(main, place.at, std::move(picked_one.photo));
        return true;
    } catch (const photo_too_long &) {
        if (picked_one.index < 0)
            throw;
        leave_out(main, main.table[picked_one.index], photo_fault::too_long);
        return false;
    }
}

// Fills place `i` with the first picture that it can take; false when there is none.
bool is_filled(frmMain & main, const place_plan & plan, std::size_t i, int & photo)
{
    const planned_place & place = plan[i];
    for (;;) {
        picked_picture next = picture_for(main, place, photo);
        if (!next.found)
            return false;
        if (place.by == filling::color && next.moved_on)
            --photo;
        read_upcoming(main, taking_photos(main, plan, i + 1), photo);
        const int index = next.index;
        if (is_drawn(main, place, std::move(next))) {
            if (index >= 0 && place.by == filling::photo)
                main.run.photos_shown.insert(index);
            return true;
        }
    }
}

void fill_locations(frmMain & main, const sign_of_life & sign)
{
    const place_plan plan = plan_of(main);
    int photo = 0;
    for (std::size_t i = 0; i < plan.size() && !main.run.cancel_requested; ++i) {
        fire(sign);
        if (plan[i].by != filling::fixed_picture)
            main.run.image_number = narrow(main.run.image_number + 1);
        if (!is_filled(main, plan, i, photo))
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
