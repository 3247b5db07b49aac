#pragma once

#include "frames/sets/frmFrames.h"
#include "support/desktop.h"

#include <string>

struct frmMain;

/// The frames of a set as pictures.

/// What all frames of a set share.
struct frame_look {
    std::uint32_t outside = 0, inside = 0;  ///< as screen controls hold colours
    std::uint32_t caption_back = 0, caption_fore = 0;
    font_style font;        ///< its size is chosen for each caption
    std::string icon_path;  ///< empty: no icon
};

/// A frame with a caption. `work_folder` takes the work file `caption1.bmp`. An icon that can't be loaded is
/// left out, its room stays. Raise 61, 70, 75, 76.
bitmap portrait_frame(desktop & desk, const frame_look & look, const std::string & caption,
                      const std::string & work_folder);
bitmap landscape_frame(desktop & desk, const frame_look & look, const std::string & caption,
                       const std::string & work_folder);

/// What the controls of the editor say.
frame_look look_of(const frmMain & main);

/// Renders both frames of the caption that stands in the editor, the upright one to `path`, which ends in
/// "pframeNN.jpg".
void render_portrait_frame(frmMain & main, const std::string & path);

/// The frame across, beside `path`: "l" in the place of the "p".
void render_landscape_frame(frmMain & main, const std::string & path);

/// Renders the upright frame to `tmp/new_frame.jpg` and shows it in the editor.
void preview_frame(frmMain & main);
