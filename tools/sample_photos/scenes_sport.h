#pragma once

#include "canvas.h"

/// Sport.

void football(canvas & photo);
void skier(canvas & photo);
void surfer(canvas & photo);
