#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

/// The settings that the design or the style has forced.
std::vector<recipe_force> forces_of(const frmMain & main);

/// Notes them for the collage of the window; those of controls that aren't there are left out.
void take_forces(frmMain & main, const std::vector<recipe_force> & forces);
