#pragma once

#include "canvas.h"

/// The town.

void city_at_night(canvas & photo);
void street_lamps(canvas & photo);
void car_lights(canvas & photo);
void hot_air_balloons(canvas & photo);
