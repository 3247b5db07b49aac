#pragma once

#include "session/windows.h"

/// Hooks every handler of every window. Done once, before the first window is shown.
void connect_all(windows & all);
