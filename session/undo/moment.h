#pragma once

#include "session/frmMain.h"
#include "session/undo/control_state.h"

#include <memory>
#include <string>
#include <tuple>
#include <vector>

/// The finishing stage as it is at one moment, as a value: its controls, what the window holds beside them,
/// its photos in their order, the files that a run reads and the preview on show. Whoever goes back to it
/// sees the same picture, drawn by chance or not, and goes on from there as then.

/// What the window holds beside its controls and has a say in a run, or in what a control does next.
inline auto held_beside_controls(frmMain & main)
{
    return std::tie(main.collage, main.design_record, main.left_out, main.table.reshuffle_choice, main.quick,
                    main.work_style, main.min_location, main.poster_tall, main.selected_count,
                    main.working_list_path, main.collage_width, main.collage_height, main.shake_start,
                    main.mix_step, main.in_preview, main.preview_blocked, main.skip_preview_click,
                    main.shape_row_bias, main.shape_column_bias, main.shape_rows, main.shape_columns,
                    main.shape_in_force, main.bg_portrait, main.bg_color, main.caption_color,
                    main.drawn_background, main.font_extended, main.font_size_text, main.last_frame_size);
}

template <typename... Held>
std::tuple<Held...> values_of(const std::tuple<Held &...> &);
using held_values = decltype(values_of(held_beside_controls(std::declval<frmMain &>())));

/// The table of photos as far as it outlives a run.
struct kept_photos {
    std::vector<std::string> photos;
    int16 last_photo = -1;
    int beyond = 0;
    int16 landscape_count = 0, portrait_count = 0;
    std::string orientation_list;
    bool operator==(const kept_photos &) const = default;
};

/// The controls that a moment keeps: not those of the menus, of a run or of the choosing stage.
std::vector<control *> kept_controls(const frmMain & main);

/// The bytes of a file; nullptr when there was none.
using kept_file = std::shared_ptr<const std::string>;

struct moment {
    std::vector<control_state> controls;
    held_values beside_controls;
    int width = 0, height = 0;  ///< of the window
    std::shared_ptr<const kept_photos> photos;
    kept_file quick_template, selection;
    std::string shown_file;  ///< in `picSample`
    kept_file preview;       ///< what it shows when it shows the finished picture
    int loads = 0;           ///< of `picSample`, by which a new preview is known
    /// True when a user sees no difference: the files behind it don't count.
    bool operator==(const moment & other) const;
};

/// The window as it is now. It shares with `before` what is still the same; a file that can't be read counts
/// as none.
moment moment_of(frmMain & main, const moment & before);

/// Brings the window from `present` back to `wanted`. No handler fires and nothing is drawn. The files come
/// first: raises 61, 70, 75, 76, and then all is as it was. Where the photos are the same, those that were
/// left out since stay so.
void put_back(frmMain & main, const moment & wanted, const moment & present);
