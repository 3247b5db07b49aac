#include "session/drops.h"

#include "photos/dropped_photos.h"
#include "photos/editor/photo_cells.h"
#include "photos/editor/photo_grid.h"
#include "photos/lists/working_list.h"
#include "quick/start_quick.h"
#include "recipes/open_flurn.h"
#include "recipes/recipe.h"
#include "session/main_window/photos.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

constexpr const char * wait = "Please wait, the program is at work.";

drop_offer taken(const std::string & sentence)
{
    return {.sentence = sentence, .taken = true};
}

drop_offer refused(const std::string & sentence)
{
    return {.sentence = sentence, .taken = false};
}

// What no window takes is refused in the same words everywhere.
drop_offer if_local(const dragged_files & dragged, const drop_offer & offer)
{
    if (!offer.taken || !dragged.paths.empty())
        return offer;
    return refused("Only files of this computer can be dropped here. Save the photos to a folder first.");
}

bool is_recipe(const std::string & path)
{
    return path.ends_with(recipe_ending);
}

// One flurn and nothing else: there is one window to open it in.
bool is_flurn(const dragged_files & dragged)
{
    return dragged.paths.size() == 1 && is_recipe(dragged.paths.front());
}

drop_offer offer_of_flurn(const frmMain & main)
{
    return main.menus_shown ? taken("Drop here to open this flurn.")
                            : refused("Finish or cancel this collage first, then drop the flurn.");
}

drop_offer offer_of_photos(const frmMain & main)
{
    return taken(main.menus_shown ? "Drop here to make a quick collage of these photos."
                                  : "Drop here to take these photos instead of those in the collage.");
}

drop_offer offer_of_main(const frmMain & main, const dragged_files & dragged)
{
    return is_flurn(dragged) ? offer_of_flurn(main) : if_local(dragged, offer_of_photos(main));
}

void take_in_main(frmMain & main, const dragged_files & dropped)
{
    if (is_flurn(dropped))
        return open_flurn(main, dropped.paths.front());
    if (!use_as_source(main, dropped))
        return;
    if (main.menus_shown)
        begin_quick(main, {});
    else
        go_on_with_chosen_photos(main);
}

drop_target target_of_main(windows & all, const drop_surroundings & around)
{
    frmMain & main = all.main;
    return {.offer =
                [&main, around](const dragged_files & dragged) {
                    const bool busy = main.run.run_active || around.is_busy();
                    return busy ? refused(wait) : offer_of_main(main, dragged);
                },
            .take = [&main, around](const dragged_files & dropped, int,
                                    int) { around.act([&] { take_in_main(main, dropped); }); }};
}

drop_target target_of_choice(windows & all)
{
    return {.offer =
                [](const dragged_files & dragged) {
                    return if_local(dragged, taken("Drop here to use these photos."));
                },
            .take =
                [&all](const dragged_files & dropped, int, int) {
                    if (use_as_source(all.main, dropped))
                        all.select_photos.unload();
                }};
}

drop_offer offer_of_gathering(const frmMain & main)
{
    return has_room_in_working_list(main)
               ? taken("Drop here to add these photos to the selection.")
               : refused("There is no room for more photos. Clear the list first.");
}

// The list knows its own limit.
void take_in_gathering(windows & all, const dragged_files & dropped)
{
    constexpr auto all_of_them = std::numeric_limits<std::size_t>::max();
    add_to_working_list(all.main, told_photos_of_drop(all.main, dropped, all_of_them).photos);
    show_selected_count(all);
}

drop_target target_of_gathering(windows & all)
{
    return {
        .offer =
            [&all](const dragged_files & dragged) { return if_local(dragged, offer_of_gathering(all.main)); },
        .take = [&all](const dragged_files & dropped, int, int) { take_in_gathering(all, dropped); }};
}

int free_cells(const frmPictures & window)
{
    return static_cast<int>(
        std::ranges::count_if(window.picIn, [](const picture & cell) { return is_empty(cell); }));
}

drop_offer offer_of_editor(const frmPictures & window)
{
    if (window.checking)
        return refused(wait);
    if (free_cells(window) == 0)
        return refused("There is no room for more photos. Remove some first.");
    return taken("Drop here to add these photos at this place.");
}

void take_in_editor(windows & all, const dragged_files & dropped, std::optional<int> cell)
{
    const auto every = static_cast<std::size_t>(editable_photos);
    const dropped_photos found = told_photos_of_drop(all.main, dropped, every);
    if (!found.photos.empty())
        add_photos_at(all.main, found.photos, cell);
    all.pictures.cmdSave.enable(!is_empty(all.pictures));
}

drop_target target_of_editor(windows & all)
{
    return {.offer =
                [&all](const dragged_files & dragged) {
                    return if_local(dragged, offer_of_editor(all.pictures));
                },
            .take = [&all](const dragged_files & dropped, int x,
                           int y) { take_in_editor(all, dropped, cell_at(x, y)); },
            .surface = &all.pictures.picBig};
}

}  // namespace

drop_targets connect_drops(windows & all, const drop_surroundings & around)
{
    return {{&all.main, target_of_main(all, around)},
            {&all.select_photos, target_of_choice(all)},
            {&all.photo_list, target_of_gathering(all)},
            {&all.pictures, target_of_editor(all)}};
}
