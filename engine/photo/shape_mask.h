#pragma once

#include "session/frmMain.h"

#include <string>

/// The mask of that name, scaled to `size` by `size`; nullptr when it is missing or the size is below 1. It
/// stays on the run's shelf, since reading and scaling a mask costs more than painting it; the next call may
/// put it away.
const bitmap * shape_mask(frmMain & main, const std::string & name, int size);
