#include "batch/recipe_step.h"

#include "batch/given_photos.h"
#include "batch/settings.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "quick/shapes/quick_shapes.h"
#include "recipes/bring_back.h"
#include "recipes/found_photos.h"
#include "recipes/read_recipe.h"
#include "recipes/recipe_shelf.h"
#include "support/platform_error.h"

#include <cstdio>

namespace {

recipe checked_recipe(frmMain & main, const std::string & file)
{
    try {
        recipe wanted = read_recipe(main, file);
        check_recipe(main, wanted);
        return wanted;
    } catch (const recipe_fault & fault) {
        throw bad_arguments{"\"" + file + "\" can't be made: " + fault.what};
    }
}

void name_each(const std::vector<std::string> & photos, const char * what)
{
    for (const std::string & photo : photos)
        std::fprintf(stderr, "%s %s\n", photo.c_str(), what);
}

// True when they are the photos of then.
bool own_photos_found(frmMain & main, recipe & wanted, const std::string & file)
{
    const found_photos found = look_for(main, wanted.photos);
    name_each(found.gone, "isn't there any more; it is left out.");
    for (const refused_photo & photo : found.refused)
        std::fprintf(stderr, "%s is left out: %s.\n", photo.path.c_str(), photo.why.c_str());
    name_each(found.changed, "has changed since this flurn was made.");
    if (found.there.empty())
        throw platform_error(error_number::file_not_found,
                             "None of the photos of this flurn can be used any more; --photos names others.",
                             file);
    wanted.photos = found.there;
    return found.are_those_of_then();
}

void take_given_photos(const frmMain & main, recipe & wanted)
{
    wanted.photos.clear();
    for (int i = 0; i <= main.table.last_photo; ++i)
        wanted.photos.push_back({.path = photo_path(main.table[i])});
}

std::vector<std::string> paths_of(const recipe & wanted)
{
    std::vector<std::string> paths;
    for (const recipe_photo & photo : wanted.photos) {
        paths.push_back(photo.path);
        if (photo.original)
            paths.push_back(photo.original->path);
    }
    return paths;
}

// A preview is drawn while it is on, and shows the order of the photos that was approved.
void turn_preview_on(frmMain & main)
{
    const updating quiet(main);
    main.optPreview.select();
    main.collage.keeps_turns = true;
}

}  // namespace

void check_recipe_file(frmMain & main, const batch_arguments & arguments)
{
    checked_recipe(main, arguments.recipe);
}

void start_recipe(frmMain & main, const batch_arguments & arguments,
                  const std::function<void()> & bring_photos)
{
    recipe wanted = checked_recipe(main, arguments.recipe);
    bool is_unchanged = false;
    if (arguments.photos.empty()) {
        is_unchanged = own_photos_found(main, wanted, arguments.recipe);
        check_is_none_of(paths_of(wanted), arguments.out);
    } else {
        bring_photos();
        take_given_photos(main, wanted);
    }
    bring_back(main, wanted, {.is_unchanged = is_unchanged, .draws = way_back::drawing::left_out});
    apply_settings(main, arguments);
    // The grid of shapes is laid out by a preview, and there is none.
    const bool as_it_was = is_unchanged && arguments.settings.empty();
    if (!as_it_was && main.collage.quick_active && main.optShapes.selected())
        write_quick_shapes(main);
    if (arguments.preview)
        turn_preview_on(main);
}
