#pragma once

#include "session/frmMain.h"

/// The sign of life of a run in the window: shows which image is being worked on and lets events through.
void show_image_number(frmMain & main);
