#pragma once

#include "designs/templates/location.h"
#include "engine/pixels/ornaments.h"
#include "session/frmMain.h"

/// What a photo wears, from its location's own sizes, the window's lists and boxes, and the colours of the
/// run.

/// Corners, edges and colours alone; without frame and shadow. An upright photo is soft while the ornaments
/// are shown, a tilted one in any case.
ornaments worn_by_boxes(const frmMain & main, int rotation);

/// Of the photo at that location, turned by `rotation`.
ornaments worn_at(const frmMain & main, const location & place, int rotation);

/// Of a photo in a grid with those cells; in a preview its frame and shadow have a bound of their own.
ornaments worn_in_grid(const frmMain & main, const location & cells, int rotation);
