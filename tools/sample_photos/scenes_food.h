#pragma once

#include "canvas.h"

/// Food and drink.

void pizza(canvas & photo);
void market_fruit(canvas & photo);
void ice_cream(canvas & photo);
