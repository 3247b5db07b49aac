#pragma once

#include "session/frmMain.h"

/// The next photo that lies as a location of this size does, its cursor moved. Empty, with a word to the
/// user, when no photo does. Photos that lie the other way are told by their headers and not loaded.
bitmap pick_matching(frmMain & main, int width, int height);
