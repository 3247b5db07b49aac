#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

/// The fields of the finishing stage (`stage_fields`) as settings of a recipe.

/// All of it as it is now.
std::vector<recipe_setting> settings_of(frmMain & main);

/// Brings it into the window as the recipe has it; what the recipe doesn't have stays. Throws recipe_fault
/// for a value that the window can't hold; what was brought until then stays, so it is to be checked first.
void take_settings(frmMain & main, const recipe & wanted);

/// Throws the same, and changes nothing.
void check_settings_of(frmMain & main, const recipe & wanted);
