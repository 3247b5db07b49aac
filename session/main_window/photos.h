#pragma once

#include "session/frmMain.h"

/// The photos of the collage, their order, and how many there are.
void connect_photos(frmMain & main);
