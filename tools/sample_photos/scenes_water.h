#pragma once

#include "canvas.h"

/// Water.

void mountain_lake(canvas & photo);
void beach(canvas & photo);
void sailing_boats(canvas & photo);
void waterfall(canvas & photo);
void lighthouse(canvas & photo);
