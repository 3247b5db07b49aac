#pragma once

#include "canvas.h"

/// People and animals.

void girl_with_balloons(canvas & photo);
void jumping_friends(canvas & photo);
void cat_on_the_sill(canvas & photo);
void dog_in_the_grass(canvas & photo);
