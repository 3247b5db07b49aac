#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

/// Loads the background picture, if one is in use, and blends it onto the canvas. A picture that can't be
/// loaded leaves the canvas as it is.
void lay_background(frmMain & main, run_size size);

/// The ground of a full-size poster with its picture, in that size; none where it is of one colour.
bitmap ground_picture(frmMain & main, picture_size size);
