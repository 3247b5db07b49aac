#pragma once

#include "canvas.h"

/// The land and its seasons.

void forest_path(canvas & photo);
void sunflower_field(canvas & photo);
void winter_firs(canvas & photo);
void desert_dunes(canvas & photo);
void harvest_moon(canvas & photo);
void poppy_hills(canvas & photo);
void autumn_trees(canvas & photo);
