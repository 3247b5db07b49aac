#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

/// What the finishing stage holds beside its controls, under names, for a recipe: all that
/// `held_beside_controls` names but the photos that were left out, and the counts of the table.

/// All of it as it is now.
std::vector<recipe_setting> settings_of(frmMain & main);

/// Brings it into the window as the recipe has it; what the recipe doesn't have stays. Throws recipe_fault
/// for a value that the window can't hold; what was brought until then stays, so it is to be checked first.
void take_settings(frmMain & main, const recipe & wanted);

/// Throws the same, and changes nothing.
void check_settings_of(frmMain & main, const recipe & wanted);

/// The settings that the design or the style has forced.
std::vector<recipe_force> forces_of(const frmMain & main);

/// Notes them for the collage of the window; those of controls that aren't there are left out.
void take_forces(frmMain & main, const std::vector<recipe_force> & forces);
