#pragma once

#include "engine/photo/photo_place.h"
#include "engine/photo/run_photo.h"
#include "session/frmMain.h"

/// From a loaded photo to the canvas: fitted, with the window alive meanwhile, then drawn. Raises
/// photo_too_long, and overflow (6) for a place beyond 16 bits.

/// An upright photo, a shape or, with a rotation, a tilted photo. Nothing where nothing is left of the place.
/// A rotation without a section in `rotate.ini` and a missing white sheet draw nothing.
void lay_photo(frmMain & main, run_photo photo, const photo_place & at);

/// The photo on a card of the frame colour with room for writing; the card is the whole place.
void lay_card(frmMain & main, run_photo photo, const photo_place & at);

/// The size that a photo of that size will be fitted to there, on a card when captions are on. Raises
/// overflow (6).
picture_size fitted_size(const frmMain & main, const photo_place & at, picture_size own);
