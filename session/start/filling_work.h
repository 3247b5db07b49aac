#pragma once

#include "session/frmMain.h"

#include <atomic>
#include <functional>

/// Copies `files` files (0: nobody knows how many) into the data folder by `step`, which counts each of them
/// as done. The step runs beside the session, touches nothing of it, and ends with a flush; where that takes
/// longer than half a second a small window tells how far it is. Raises what the step raises.
void fill_by(frmMain & main, int files, const std::function<void(std::atomic<int> & done)> & step);
