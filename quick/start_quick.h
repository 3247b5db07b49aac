#pragma once

#include "session/frmMain.h"

#include <functional>

/// " Quick flurn": a collage for the photos at hand, without a chosen design.

/// The whole way from the menu to the first preview. `choose_photos` lets the user choose photos, as the
/// photo chooser does. False, with a word to the user where he should know, when it ends in the choosing
/// stage: no photos, or too few.
bool begin_quick(frmMain & main, const std::function<void()> & choose_photos);

/// Brings the window to the first quick style: blocks on an upright poster. The photos are counted. False
/// when there are too few for blocks and no scatter for them either.
bool start_quick(frmMain & main);

/// Goes on with other photos, which have been counted: finds their template and redraws. For other collages
/// just redraws.
void take_new_photos(frmMain & main);
