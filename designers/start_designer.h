#pragma once

#include "session/frmMain.h"

#include <functional>

/// " Matrix flurn", "Lettering flurn", "Puzzle flurn": a collage that a special designer lays out.

enum class designer { matrix, lettering, puzzle };

/// The whole way from the menu to the first preview: the designer's window, the photos, the finishing stage.
/// `choose_photos` lets the user choose photos, as the photo chooser does. Ends in the choosing stage when
/// either is cancelled.
void start_designer(frmMain & main, designer chosen, const std::function<void()> & choose_photos);
