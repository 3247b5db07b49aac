#pragma once

#include "session/windows.h"

/// Hooks the handlers of every window but the main one, and what opens its help page.
void connect_windows(windows & all);
