#pragma once

#include "session/frmMain.h"

#include <optional>
#include <string>

/// From the user's choice of photos to the table that a collage is made of.

/// Lets the user choose a saved list and gives its path: its name goes to `txtCards` of the choice's dialog,
/// "True" to the tag of `optList`, its path to the tag of `txtPhotos`. A cancel leaves that tag empty.
std::optional<std::string> get_photo_list(frmMain & main);

/// Counts and checks the table under the busy pointer, with the counting window shown; names the photos that
/// can't be used.
void count_with_progress(frmMain & main);

/// Reads a list or a selection into the table, which a folder has filled already, and counts it. The question
/// whether to shuffle will be asked anew.
void take_chosen_photos(frmMain & main);
