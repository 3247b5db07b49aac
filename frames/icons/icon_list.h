#pragma once

#include "session/frmMain.h"

#include <string>

/// The icons that a frame can wear: the list `icons/icons` of the data folder, with the pictures beside it.

inline constexpr int widest_icon = 100, highest_icon = 90;  ///< pixels

/// Fills the list of icons of the editor, "None" first, and selects its `current_icon`. Lines that name no
/// file are passed over. Takes 201 icons at most and tells the user when there are more. Raises 53, 70.
void load_icons(frmMain & main);

/// True when an icon has that name, in either case of the letters. Raises 53, 70.
bool is_icon_name_taken(const frmMain & main, const std::string & name);

/// Copies the picture at `main.icon_path` to the icons, under a name that no file has there, and adds it to
/// the list. Gives the name of its file, or nothing, after a message, for a path that has no usable name.
/// Raises 53, 61, 70, 75, 76; the list then stands as it was.
struct taken_icon {
    std::string file;
    bool renamed = false;  ///< another icon's file had the picture's own name
};
std::optional<taken_icon> take_icon(frmMain & main, const std::string & name);
