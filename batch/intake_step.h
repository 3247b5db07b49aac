#pragma once

#include "batch/arguments.h"
#include "session/frmMain.h"

#include <string>
#include <vector>

/// The photos that the caller names, each upright and of a kind that a collage takes: those that need it are
/// prepared as tessaloom-intake does, and last as long as the session. What can't be used is named on
/// standard error and left out. Raises 61, 70, 75, 76 where the data folder can't be written and 53 when
/// nothing is left; throws bad_arguments when the collage would replace one of the photos.
std::vector<std::string> prepared_for_collage(frmMain & main, const batch_arguments & arguments);
