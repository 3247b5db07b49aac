#pragma once

#include "intake/byte_view.h"

/// True when colours that a profile of this kind describes are those of sRGB, so that nothing has to be
/// converted: its primaries and its curve are looked at, whatever its name says. Profiles that describe
/// colours by tables are never taken for it.
bool is_srgb(byte_view profile);
