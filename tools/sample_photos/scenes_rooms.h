#pragma once

#include "canvas.h"

/// Rooms, and a wall in the sun.

void reading_corner(canvas & photo);
void christmas_tree(canvas & photo);
void bicycle_at_the_wall(canvas & photo);
