#pragma once

#include "support/MFreeImage.h"

/// The colour as drawn: a dark one never equals the transparent key, which is black.
rgb_triple away_from_key(rgb_triple color);
