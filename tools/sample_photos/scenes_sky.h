#pragma once

#include "canvas.h"

/// Nights with lights in the sky.

void northern_lights(canvas & photo);
void fireworks(canvas & photo);
void concert(canvas & photo);
void sky_lanterns(canvas & photo);
void tent_under_stars(canvas & photo);
void ferris_wheel(canvas & photo);
