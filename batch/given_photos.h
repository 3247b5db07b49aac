#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The photos that the caller names: folders, lists and files in any mix.

/// Brings them into the session as the choosers of the window do: one folder as a folder, one list as a list,
/// anything else as a selection. What isn't there, can't be read, is no JPEG or has more pixels in a
/// direction than the session can count is named on standard error and left out; so are those beyond the room
/// of the table. Raises file_not_found (53) when nothing is left, and throws bad_arguments when `out`, which
/// the collage is going to replace, is one of them.
void take_photos(frmMain & main, const std::vector<std::string> & given, const std::string & out);

/// Throws bad_arguments when `out`, which the collage is going to replace, is one of the photos.
void check_is_none_of(const std::vector<std::string> & photos, const std::string & out);

/// Names on standard error, each in a line, the photos that the session had to leave out later: their headers
/// were those of pictures.
void name_left_out(const frmMain & main);
