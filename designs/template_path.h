#pragma once

#include "session/frmMain.h"

#include <string>

/// Where the template file of that name lies: a work file, and one that this session keeps a copy of, in the
/// work folder, any other in `designs` of the data folder.
std::string template_path(const frmMain & main, const std::string & file);
