#pragma once

#include "session/frmMain.h"

/// The background of the collage, plain or a picture, and the border around it.
void connect_background(frmMain & main);
