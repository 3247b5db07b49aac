#pragma once

#include "designs/catalogue/design_lines.h"
#include "session/frmMain.h"
#include "session/undo/moment.h"
#include "support/files/paths.h"

#include <algorithm>
#include <limits>
#include <string>
#include <tuple>

/// What the finishing stage holds beside its controls, under the names that a recipe has for it: all that
/// `held_beside_controls` names but the photos that were left out, and the counts of the table.

// A new field there needs a name here.
static_assert(std::tuple_size_v<held_values> == 29);

/// What the program itself puts there: what walks by such a number trusts it.
struct field_range {
    int least, most;
};
inline constexpr field_range any_count_of_photos{0, photo_table::capacity};

template <typename Visit>
void visit_collage(collage & of, const Visit & visit)
{
    visit("collage.kind", of.kind, collage_kind::puzzle);
    visit("collage.quick_active", of.quick_active);
    visit("collage.random_design", of.random_design);
    visit("collage.design_rotated", of.design_rotated);
    visit("collage.design_flipped", of.design_flipped);
    visit("collage.design_mirrored", of.design_mirrored);
    visit("collage.stretch_design", of.stretch_design);
    visit("collage.design_matches", of.design_matches);
    visit("collage.landscape_turn", of.landscape_turn, field_range{-100, 100});
    visit("collage.bg_from_design", of.bg_from_design);
    visit("collage.turns_shown", of.turns_shown);
    visit("collage.locations_shown", of.locations_shown, field_range{0, location_table::capacity});
    visit("collage.holes_shown", of.holes_shown);
    visit("collage.borders_free", of.borders_free);
    visit("collage.matrix_both", of.matrix_both);
    visit("collage.matrix_rotate", of.matrix_rotate);
    visit("collage.matrix_resize", of.matrix_resize);
    visit("collage.matrix_session", of.matrix_session);
    visit("collage.frames_design", of.frames_design);
    visit("collage.frames_inside", of.frames_inside);
    visit("collage.frame_set_name", of.frame_set_name);
}

// "design.turn_bg" for "Turn BG=".
inline std::string setting_name_of(const design_key & key)
{
    std::string name = "design." + lower_case(key.text.substr(0, key.text.size() - 1));
    std::ranges::replace(name, ' ', '_');
    return name;
}

template <typename Visit>
void visit_record(design_record & of, const Visit & visit)
{
    visit("design.section", of.section);
    for (const design_key & key : design_keys())
        visit(setting_name_of(key).c_str(), of.*key.value);
}

template <typename Visit>
void visit_quick(quick_state & of, const Visit & visit)
{
    visit("quick.photos_portrait", of.photos_portrait, any_count_of_photos);
    visit("quick.photos_landscape", of.photos_landscape, any_count_of_photos);
    visit("quick.photo_shapes", of.photo_shapes);
    visit("quick.along", of.quick_along, any_count_of_photos);
    visit("quick.cross", of.quick_cross, any_count_of_photos);
    visit("quick.reduced", of.quick_reduced, field_range{0, std::numeric_limits<int16>::max()});
    visit("quick.max", of.quick_max, field_range{0, largest_scatter});
    visit("quick.block_name", of.block_name);
    visit("quick.block_doubled_file", of.block_doubled_file, any_count_of_photos);
    visit("quick.block_split_file", of.block_split_file, any_count_of_photos);
    visit("quick.block_doubled", of.block_doubled,
          field_range{-photo_table::capacity, photo_table::capacity});
    visit("quick.block_split", of.block_split, field_range{-photo_table::capacity, photo_table::capacity});
    visit("quick.scatter_line", of.scatter_line);
    visit("quick.scatter_mode", of.scatter_mode, scatter_mode::scatter);
    visit("quick.matrix_offset", of.matrix_offset, field_range{-1, 23});
    visit("quick.matrix_notice_done", of.matrix_notice_done);
    visit("quick.preview_inset", of.preview_inset, field_range{0, 1000});
    visit("quick.shape_file", of.shape_file);
}

template <typename Visit>
void visit_photos(photo_table & of, const Visit & visit)
{
    visit("photos.reshuffle", of.reshuffle_choice, photo_table::reshuffle::yes);
    visit("photos.landscape", of.landscape_count, any_count_of_photos);
    visit("photos.portrait", of.portrait_count, any_count_of_photos);
    visit("photos.shapes", of.orientation_list);
}

template <typename Visit>
void visit_window(frmMain & of, const Visit & visit)
{
    visit("work_style", of.work_style);
    visit("min_location", of.min_location, field_range{-32768, 100});
    visit("poster_tall", of.poster_tall);
    visit("selected_count", of.selected_count, field_range{0, std::numeric_limits<int16>::max()});
    visit("collage_width", of.collage_width, field_range{1, 3000});
    visit("collage_height", of.collage_height, field_range{1, 3000});
    visit("shake_start", of.shake_start, field_range{-1, 16});
    visit("mix_step", of.mix_step, field_range{-1, 8});
    visit("in_preview", of.in_preview);
    visit("preview_blocked", of.preview_blocked);
    visit("skip_preview_click", of.skip_preview_click);
    visit("shape_row_bias", of.shape_row_bias);
    visit("shape_column_bias", of.shape_column_bias);
    visit("shape_rows", of.shape_rows);
    visit("shape_columns", of.shape_columns);
    visit("shape_in_force", of.shape_in_force, poster_shape::square);
    visit("bg_portrait", of.bg_portrait);
    visit("bg_color", of.bg_color);
    visit("caption_color", of.caption_color);
    visit("drawn_background", of.drawn_background);
    visit("font_extended", of.font_extended);
    visit("font_size_text", of.font_size_text);
    visit("last_frame_size", of.last_frame_size);
    visit("matrix_size", of.matrix_size);
    visit("matrix_portrait", of.matrix_portrait);
}

/// Calls visit(name, field) for each of them, with the range of a number or the last value of an enum behind
/// it.
template <typename Visit>
void visit_fields(frmMain & main, const Visit & visit)
{
    visit_collage(main.collage, visit);
    visit_record(main.design_record, visit);
    visit_quick(main.quick, visit);
    visit_photos(main.table, visit);
    visit_window(main, visit);
}
