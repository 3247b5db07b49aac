#pragma once

#include "session/frmMain.h"

#include <optional>
#include <string>

/// Where the fixed picture of a location lies: in `install_folder` when its path begins with "images", else
/// in `data_folder`. Nothing for a path that would leave the folder: a template may come from anywhere.
std::optional<std::string> fixed_picture_path(const frmMain & main, const std::string & file);
