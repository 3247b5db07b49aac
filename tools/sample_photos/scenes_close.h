#pragma once

#include "canvas.h"

/// Things seen from close by.

void flower_close_up(canvas & photo);
void birthday_cake(canvas & photo);
void coffee_table(canvas & photo);
void citrus_slices(canvas & photo);
