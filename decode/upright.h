#pragma once

#include "decode/samples.h"

/// The picture without transparency: what shows through is white. Others come back as they are.
samples on_white(samples picture);

/// The picture turned and flipped so that its orientation, 1 to 8, becomes 1.
samples upright(samples picture);
