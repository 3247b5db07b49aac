#pragma once

#include "engine/photo/known_files.h"
#include "engine/photo/photo_ahead.h"
#include "engine/photo/small_grounds.h"
#include "engine/photo/small_photos.h"
#include "engine/pixels/mask_shelf.h"
#include "engine/render_scale.h"
#include "support/MFreeImage.h"
#include "support/numbers.h"

#include <chrono>
#include <map>
#include <memory>
#include <set>
#include <string>

struct kept_canvas;

/// The state of one collage run, seen by the driver, the loops and the drawing alike. Pixels are those of the
/// layout.
struct run_state {
    bitmap canvas;             ///< collage with its bleed; after a full run the finished collage
    render_scale drawn_at;     ///< set by whoever starts a full-size run; the preview knows 1 alone
    int16 collage_margin = 0;  ///< bleed around the collage, in each direction
    double collage_scale = 0;  ///< collage height / 600
    bool run_active = false;
    bool cancel_requested = false;
    bool ends_at_cancel = false;  ///< a cancel ends it while a photo is waited for, too
    int16 image_number = 0;       ///< shown while a run goes on, from 1
    int images_in_all = 0;        ///< as far as can be told when the loops begin
    std::chrono::steady_clock::time_point began{};
    int16 photo_cursor = 0;                 ///< next photo of the grid loop, kept between layers
    int16 frame_size = 0, shadow_size = 0;  ///< of the lists when the run began
    rgb_triple frame_color, shadow_color;   ///< likewise; never pure black: that is the transparent key
    bool match_active = false;
    int16 next_portrait = 0, next_landscape = 0;  ///< cursors of the orientation matching
    int16 evolve_portrait_wraps = 0, evolve_landscape_wraps = 0;
    std::set<int> photos_shown;  ///< of the table, by their indices; none of a run that failed
    mask_shelf masks;            ///< outlives the run: a preview uses the same again
    photo_ahead ahead;
    std::shared_ptr<kept_canvas> kept;  ///< of the last preview, with its photos and without its caption
    known_files known;                  ///< outlives the run as well
    small_photos small;                 ///< likewise
    small_grounds grounds;              ///< likewise
    int16 first_cell_height = 0, first_cell_width = 0;  ///< in a grid its rows and columns
    int16 caption_height = 0;                           ///< pixels, of the prepared caption
};
