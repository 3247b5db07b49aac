#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// What the designers have in common.

/// Replaces the template `name` below `designs` of the data folder. Raises 61, 70, 75, 76; the old one then
/// stays.
void write_work_template(const frmMain & main, const std::string & name,
                         const std::vector<std::string> & lines);
