#include "recipes/bring_back.h"

#include "designs/catalogue/last_flurn.h"
#include "engine/image_number.h"
#include "engine/preview.h"
#include "photos/chosen_photos.h"
#include "photos/lists/photo_list.h"
#include "photos/lists/pls_line.h"
#include "quick/quick_template.h"
#include "quick/start_quick.h"
#include "recipes/kept_forces.h"
#include "recipes/read_recipe.h"
#include "recipes/stage_settings.h"
#include "session/begin_collage.h"
#include "session/undo/moment.h"
#include "session/window_state.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace {

// ---- what the window can hold

struct number_limit {
    const char * control;
    double least, most;
};
constexpr std::array<number_limit, 6> number_limits{{{"cmbFrame", 0, 60},
                                                     {"cmbShadow", 0, 50},
                                                     {"cmbSize", 0, 400},
                                                     {"cmbBlend", -1000, 1000},
                                                     {"cmbBlanks", -1000, 1000},
                                                     {"cmbSpace", -1000, 1000}}};
constexpr double largest_caption = 400;  // points

void check_number(const std::string & text, double least, double most, const char * where)
{
    double value = least - 1;
    tried([&] { value = leading_number(text); });
    if (!(value >= least && value <= most))
        throw recipe_fault{std::string("Its value of ") + where + " is none that a flurn has."};
}

void check_controls(const recipe & wanted)
{
    for (const number_limit & each : number_limits)
        if (const recipe_control * const found = control_in(wanted, each.control))
            check_number(found->state.value, each.least, each.most, each.control);
    if (const recipe_control * const caption = control_in(wanted, "txtCaption"))
        check_number(caption->state.tag, 0, largest_caption, "txtCaption");
    if (const recipe_control * const source = control_in(wanted, "lblPhotos"))
        check_number(source->state.tag, 0, static_cast<double>(photo_source::selection), "lblPhotos");
}

bool is_of_the_session(const std::string & file)
{
    return file.starts_with("__");
}

// Only the window's own generators name a template that isn't the recipe's own.
void check_template(const recipe & wanted)
{
    const std::string * const file = setting_in(wanted, "design.file");
    const std::string name = file != nullptr && is_of_the_session(*file) ? *file : "__recipe";
    if (template_in(wanted, name) == nullptr && template_in(wanted, "__recipe") == nullptr)
        throw recipe_fault{"It lacks the template of its design."};
}

// ---- the stage

void write_templates(const frmMain & main, const recipe & wanted)
{
    for (const recipe_template & each : wanted.templates)
        write_file(work_path(main, "designs/" + each.name), each.text);
}

void take_controls(const frmMain & main, const recipe & wanted)
{
    for (control * each : kept_controls(main)) {
        const recipe_control * const found = control_in(wanted, each->name());
        if (found != nullptr && found->state != state_of(*each))
            take_state(*each, found->state);
    }
}

void enter_stage(frmMain & main)
{
    forget_last_flurn(main);
    main.mnuSaveDesign.enable(false);
    main.run.cancel_requested = false;
    clear_stage(main);
    show_menus(main, false);
    show_work_controls(main, true);
    start_enable_true(main);
    hide_image_number(main);  // with a preview that was kept, no run is there to do it
    main.cmdFlurn.enable(true);
    main.cmdHelp.enable(true);
    main.photo_choice_cancelled = false;
    main.working_list_path.clear();
}

void take_stage(frmMain & main, const recipe & wanted)
{
    const updating quiet(main);
    take_settings(main, wanted);
    take_forces(main, wanted.forces);
    main.collage.from_recipe = template_in(wanted, "__recipe") != nullptr;
    take_controls(main, wanted);
    main.resize(main.width(), main.height());  // which looks at the orientation
}

// ---- its photos

void fill_table(frmMain & main, const recipe & wanted)
{
    photo_table & table = main.table;
    table.photos = {};
    std::ranges::transform(wanted.photos, table.photos.begin(), &recipe_photo::path);
    table.last_photo = narrow(static_cast<long>(wanted.photos.size()) - 1);
    table.beyond = 0;
}

bool is_saved_list(const frmMain & main, const std::string & path)
{
    return folder_of(path) == joined(main.data_folder, "piclists") && path.ends_with(".pls") &&
           path != last_photos_path(main) && file_exists(path);
}

// A folder and a saved list are only read again. Anything else is a selection, with a list of the session's
// own, since that is written to.
bool source_is_there(const frmMain & main)
{
    const std::string & path = main.txtPhotos.tag;
    const photo_source kind = photo_source_kind(main);
    return (kind == photo_source::folder && std::filesystem::path(path).is_absolute() &&
            folder_exists(path)) ||
           (kind == photo_source::list && is_saved_list(main, path));
}

std::string list_of(const recipe & wanted)
{
    std::string text;
    for (const recipe_photo & photo : wanted.photos)
        text += list_line(std::nullopt, photo.path) + "\r\n";
    return text;
}

void take_source(frmMain & main, const recipe & wanted)
{
    if (source_is_there(main))
        return;
    const std::string count = std::to_string(wanted.photos.size());
    replace_file(last_photos_path(main), list_of(wanted));
    set_photo_source_kind(main, photo_source::selection);
    main.lblPhotos.set_caption("Selected:");
    main.txtPhotos.tag = last_photos_path(main);
    main.cmdPhotos.tag = count;
    main.selected_count = narrow(static_cast<long>(wanted.photos.size()));
    const updating quiet(main);
    main.txtPhotos.set_text(count + " selected photos");
}

void take_photos(frmMain & main, const recipe & wanted)
{
    fill_table(main, wanted);
    take_source(main, wanted);
    count_with_progress(main);
}

// ---- its picture

void take_chance(frmMain & main, const recipe & wanted)
{
    if (!wanted.chance)
        return;
    if (const std::optional<random_source> chance = random_from(*wanted.chance))
        main.random = *chance;
}

void show_preview(frmMain & main, const std::string & picture)
{
    write_file(finished_path(main), picture);
    main.picSample.load(finished_path(main));
    main.picSample.show(true);
}

// All of it again: the counts as well, which stand in the order in which the photos were chosen.
void settle_stage(frmMain & main, const recipe & wanted)
{
    take_stage(main, wanted);
    take_source(main, wanted);
    take_chance(main, wanted);
}

// What a preview does to the stage isn't what the full-size run found.
void draw_preview(frmMain & main, const recipe & wanted)
{
    const std::vector<std::string> order(main.table.photos.begin(),
                                         main.table.photos.begin() + main.table.last_photo + 1);
    {
        const for_now kept(main.collage.keeps_turns, true);
        make_preview(main, make_quick_template);
    }
    std::ranges::copy(order, main.table.photos.begin());
    write_templates(main, wanted);
    settle_stage(main, wanted);
}

// With the preview off it is left as it went stale.
void bring_picture_back(frmMain & main, const recipe & wanted, const way_back & how)
{
    if (!how.preview.empty())
        show_preview(main, how.preview);
    else
        draw_preview(main, wanted);
}

}  // namespace

void check_recipe(frmMain & main, const recipe & wanted)
{
    if (wanted.photos.empty())
        throw recipe_fault{"It names no photo."};
    check_settings_of(main, wanted);
    check_controls(wanted);
    check_template(wanted);
}

void bring_back(frmMain & main, const recipe & wanted, const way_back & how)
{
    write_templates(main, wanted);
    begin_collage(main, collage_kind::none);
    enter_stage(main);
    take_stage(main, wanted);
    take_photos(main, wanted);
    if (how.draws == way_back::drawing::left_out) {
        const updating quiet(main);
        main.optSample.select();
    }
    if (!how.is_unchanged)
        return take_new_photos(main);
    settle_stage(main, wanted);
    if (how.draws == way_back::drawing::shown)
        bring_picture_back(main, wanted, how);
}
