#pragma once

#include "session/frmMain.h"

#include <string>
#include <string_view>

/// The settings of a frame set: the text file `design.ini` in its folder, with the one section "Frame
/// Design".

/// A field of the frame set `main.collage.frame_set_name`: the first line of its `design.ini` that begins
/// with the key and "=", whole and untrimmed, whatever section it stands in. Empty when there is none. Raises
/// file_not_found (53) for a set without that file.
std::string get_frame_field(const frmMain & main, std::string_view key);

/// A setting of the set that is being edited, without the blanks around it, cut to 254 bytes and not within a
/// letter. Empty when key or file is missing.
std::string GetFrameSetting(const frmMain & main, std::string_view key);

/// Sets one key in the text of a `design.ini`.
void SetFrameSetting(std::string & design, std::string_view key, std::string_view value);
