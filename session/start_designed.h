#pragma once

#include "session/frmMain.h"

#include <functional>

/// The second half of " Designed flurn": a design is chosen. `choose_photos` lets the user choose photos and
/// fills the table; without it they are there already. Counts them, in their own window, applies the record
/// and selects the preview. Without photos the window stays in the choosing stage.
void start_designed(frmMain & main, const std::function<void()> & choose_photos = {});
