#pragma once

#include "engine/pixels/row_scaler.h"

/// How a photo is scaled to cover `width` by `height`, with the excess cut evenly; possible only where a
/// photo of that size can be. Raises overflow (6) for one so long and narrow that a scaled side leaves 16
/// bits.
scaling_plan covering_plan(picture_size photo, int width, int height);
