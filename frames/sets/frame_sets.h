#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The user's frame sets: the folders under `frames` of the data folder, each named as its set.

/// The name of a set that was begun and has no name of its own yet.
inline constexpr const char * unnamed_set = "_named_.not";

/// A set has frames numbered 00 to this; 00 is the one with the default caption.
inline constexpr int last_frame = 36;

/// The folder of a set.
std::string frame_set_folder(const frmMain & main, const std::string & set);

/// Fills the window of the sets with their names, in the file system's order, and gives them. A set that was
/// begun and never named is deleted on the way. Raises 70, 75, 76.
const std::vector<std::string> & start_custom_frames(const frmMain & main);

/// The same for a collage that wears no set yet; tells the user when there is none, and is false then.
bool offer_frame_sets(frmMain & main);

/// Lets the user choose the set of the collage, which goes to `frame_set_name`; false after a cancel.
bool choose_frame_set(frmMain & main);

/// Begins a set anew: the folder of `edit_frame_name` with 36 empty captions. Opens the editor. Raises 61,
/// 70, 75, 76.
void new_custom_frame(frmMain & main);

/// Deletes a set: a crash on the way leaves all of it or nothing. A folder inside it stays, with the folder
/// of the set, and raises 75. Raises 70, 75, 76.
void delete_frame_set(const frmMain & main, const std::string & set);
