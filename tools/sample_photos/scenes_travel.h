#pragma once

#include "canvas.h"

/// Far away.

void savanna_elephants(canvas & photo);
void palm_beach(canvas & photo);
void tulip_fields(canvas & photo);
