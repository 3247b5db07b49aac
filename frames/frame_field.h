#pragma once

#include "session/frmMain.h"

#include <string>
#include <string_view>

/// A field of the frame set `main.frame_set_name`: the first line of its `design.ini` that begins with the
/// key and "=", whole and untrimmed, whatever section it stands in. Empty when there is none. Raises
/// file_not_found (53) for a set without that file.
std::string get_frame_field(const frmMain & main, std::string_view key);
