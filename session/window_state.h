#pragma once

#include "session/frmMain.h"

/// What the main window does with its own controls alone.

/// The poster that the orientation options stand for; upright when none is selected.
poster_shape selected_shape(const frmMain & main);

/// Shows or hides the groups of the finishing stage; those of the quick styles only while one is active.
void show_work_controls(frmMain & main, bool show);

/// Shows or hides the menus: the choosing stage.
void show_menus(frmMain & main, bool show);

/// The black stage with the start picture, where the next collage is chosen.
void show_choosing_stage(frmMain & main);

/// Makes room for a collage by a design: no start picture, no controls of a quick style.
void clear_stage(frmMain & main);

/// Brings the controls to their free state, as no design limits them.
void enable_all(frmMain & main);

/// Notes all nine groups as enabled and enables them.
void start_enable_true(frmMain & main);

/// False notes the state of the nine groups and disables them for a run, true puts it back. The same value
/// twice in a row does nothing, so that what was noted isn't lost.
void set_enable(frmMain & main, bool enable);

/// Red, green and blue of a colour name of the catalogue as a control holds them; black for any other name.
std::uint32_t color_from_name(std::string_view name);

/// Shows font name and size beside the caption.
void show_caption_font(frmMain & main);

/// Gives the caption box the ground's colour, and letters that can be read on it unless the user chose
/// theirs.
void color_caption_box(frmMain & main);
