#pragma once

#include "designs/templates/location.h"
#include "session/forced_settings.h"
#include "support/numbers.h"

#include <string>
#include <vector>

enum class collage_kind { none, quick, designed, matrix, lettering, puzzle };

/// Which collage this is: made anew when one begins, so that nothing of the one before has a say in it.
struct collage {
    collage_kind kind = collage_kind::none;
    bool quick_active = false;   ///< a quick style is in force
    bool random_design = false;  ///< a plain design of the catalogue

    // The design, as the browser gave it and as its record says.
    bool design_rotated = false, design_flipped = false, design_mirrored = false;
    bool stretch_design = false;
    bool design_matches = false;
    int16 landscape_turn = 0;  ///< degrees by which the template is turned; 100: a saved landscape design
    bool bg_from_design = false;
    bool from_recipe = false;  ///< its template came with a recipe and lies in `designs/__recipe`
    bool keeps_turns = false;  ///< for one preview: it turns, mixes and leaves holes as the one before

    /// How the preview drawn last turned the order of its locations, of which there were so many.
    std::vector<order_turn> turns_shown;
    int16 locations_shown = 0;
    /// The numbers by which chance made the holes of the quick template that the preview drawn last shows.
    std::vector<double> holes_shown;

    bool borders_free = true;  ///< false while a scatter needs a border

    // A matrix, and custom frames.
    bool matrix_both = false, matrix_rotate = false, matrix_resize = false;
    bool matrix_session = false;  ///< a matrix of the designer is in force
    bool frames_design = false, frames_inside = false;
    std::string frame_set_name;

    forced_settings forced;           ///< by the design: they go back when the next collage begins
    forced_settings forced_by_style;  ///< by the quick style: they go back with the next style as well
};
