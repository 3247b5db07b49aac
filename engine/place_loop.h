#pragma once

#include "engine/sign_of_life.h"
#include "session/frmMain.h"

/// Style "Place": every location by its own line. Stops at the first picture that can't be loaded, and behind
/// the location that was begun when a cancel was asked for.
void place_loop(frmMain & main, const sign_of_life & sign);
