#pragma once

#include "canvas.h"

/// Bridges and harbours.

void bridge_in_fog(canvas & photo);
void harbour_houses(canvas & photo);
