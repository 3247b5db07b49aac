#include "engine/kept_canvas.h"

#include "engine/photo/look_at_files.h"
#include "engine/photo/mask_path.h"
#include "engine/pixels/rectangles.h"
#include "support/files/paths.h"

#include <algorithm>
#include <set>

namespace {

// ---- what the loops read

// What only the caption wears, and what only tells.
bool is_of_no_account(const frmMain & main, const control * held)
{
    const control * const those[] = {&main.txtCaption, &main.optTop,   &main.optBottom, &main.chkClear,
                                     &main.cmbSize,    &main.lblFont,  &main.txtDoing,  &main.barDoing,
                                     &main.cmdCancel,  &main.picSample};
    return std::ranges::find(those, held) != std::end(those);
}

std::string text_of_control(const control & held)
{
    return held.name() + '\t' + held.value() + '\t' + held.caption() + '\t' + held.tag + '\t' +
           std::to_string(held.back_color()) + (held.visible() ? " shown" : "") +
           (held.enabled() ? " on\n" : "\n");
}

std::string text_of_file(const std::string & path)
{
    const file_stamp stamp = stamp_of(path).value_or(file_stamp{});
    return path + '\t' + std::to_string(stamp.changed) + '\t' + std::to_string(stamp.bytes) + '\t' +
           std::to_string(stamp.number) + '\n';
}

std::string text_of_color(const rgb_triple & color)
{
    return std::to_string(color.red) + ' ' + std::to_string(color.green) + ' ' + std::to_string(color.blue) +
           '\n';
}

std::string text_of_fields(const frmMain & main)
{
    const run_state & run = main.run;
    std::string text = main.work_style + '\n' + main.install_folder + '\n' + main.data_folder + '\n' +
                       text_of_color(run.frame_color) + text_of_color(run.shadow_color);
    for (const int each :
         {int{run.frame_size}, int{run.shadow_size}, int{run.collage_margin}, int{run.first_cell_height},
          int{run.first_cell_width}, int{main.collage_width}, int{main.collage_height},
          int{main.enabling.shadow_usable}, int{main.enabling.shadow_fixed}})
        text += std::to_string(each) + ' ';
    return text + std::to_string(run.collage_scale) + '\n';
}

std::set<std::string> supplied_files(const frmMain & main)
{
    std::set<std::string> files{joined(main.install_folder, "rotate.ini"),
                                joined(main.install_folder, "images/white.jpg")};
    for (int i = 0; i <= main.design_locations.count; ++i)
        if (const std::string & file = main.design_locations[i].file; !file.empty())
            files.insert(found_mask(file, main.install_folder, main.data_folder));
    return files;
}

std::string settings_of(const frmMain & main)
{
    std::string text = text_of_fields(main);
    for (const control * held : main.controls())
        if (!is_of_no_account(main, held))
            text += text_of_control(*held);
    for (const std::string & file : supplied_files(main))
        text += text_of_file(file);
    return text;
}

// ---- where they stand

loop_state state_of(const frmMain & main)
{
    const auto end = main.table.photos.begin() + std::max(main.table.last_photo + 1, 0);
    return {.places = main.design_locations.places,
            .place_count = main.design_locations.count,
            .photos = {main.table.photos.begin(), end},
            .orientation = main.table.photo_orientation,
            .reshuffle_choice = main.table.reshuffle_choice,
            .photo_cursor = main.run.photo_cursor,
            .image_number = main.run.image_number,
            .shake_start = main.shake_start,
            .next_portrait = main.run.next_portrait,
            .next_landscape = main.run.next_landscape,
            .portrait_wraps = main.run.evolve_portrait_wraps,
            .landscape_wraps = main.run.evolve_landscape_wraps,
            .match_active = main.run.match_active,
            .photos_shown = main.run.photos_shown};
}

void take_state(frmMain & main, const loop_state & state)
{
    main.design_locations.places = state.places;
    main.design_locations.count = state.place_count;
    main.table.photo_orientation = state.orientation;
    main.run.photo_cursor = state.photo_cursor;
    main.run.image_number = state.image_number;
    main.run.next_portrait = state.next_portrait;
    main.run.next_landscape = state.next_landscape;
    main.run.evolve_portrait_wraps = state.portrait_wraps;
    main.run.evolve_landscape_wraps = state.landscape_wraps;
    main.run.photos_shown = state.photos_shown;
}

std::map<std::string, known_file> files_looked_at(const frmMain & main)
{
    std::map<std::string, known_file> files;
    for (const auto & [path, file] : main.run.known.files)
        if (file.round == main.run.known.round)
            files[path] = file;
    return files;
}

bool are_as_they_were(frmMain & main, const std::map<std::string, known_file> & files)
{
    look_anew(main);
    return std::ranges::all_of(files, [&](const auto & each) {
        const known_file & now = file_of(main, each.first);
        return now.stamp == each.second.stamp && now.size == each.second.size;
    });
}

// A grid that is shaken writes down where its photos lie.
bool can_be_kept(const frmMain & main)
{
    return main.in_preview && !main.collage.matrix_resize && !main.collage.matrix_rotate &&
           !main.collage.matrix_both && main.table.reshuffle_choice != photo_table::reshuffle::yes;
}

// Nothing was told, asked or left to chance.
bool went_quietly(const frmMain & main, const loop_state & before, const std::string & settings)
{
    return main.left_out.in_this_run.empty() && !main.run.cancel_requested &&
           main.shake_start == before.shake_start && main.run.match_active == before.match_active &&
           main.table.reshuffle_choice == before.reshuffle_choice && state_of(main).photos == before.photos &&
           settings_of(main) == settings;
}

bool is_kept(frmMain & main, const loop_state & before, const std::string & settings)
{
    const kept_canvas * const kept = main.run.kept.get();
    return kept != nullptr && kept->settings == settings && kept->before == before &&
           are_same(kept->ground, main.run.canvas) && are_as_they_were(main, kept->files);
}

}  // namespace

void with_kept_canvas(frmMain & main, const std::function<void()> & loops)
{
    if (!can_be_kept(main))
        return loops();
    const loop_state before = state_of(main);
    const std::string settings = settings_of(main);
    if (is_kept(main, before, settings)) {
        main.run.canvas = copied(main.run.kept->canvas);
        take_state(main, main.run.kept->after);
        main.picSample.show(true);
        return;
    }
    main.run.kept.reset();
    bitmap ground = copied(main.run.canvas);
    loops();
    if (went_quietly(main, before, settings))
        main.run.kept = std::make_shared<kept_canvas>(kept_canvas{.settings = settings,
                                                                  .before = before,
                                                                  .ground = std::move(ground),
                                                                  .files = files_looked_at(main),
                                                                  .after = state_of(main),
                                                                  .canvas = copied(main.run.canvas)});
}
