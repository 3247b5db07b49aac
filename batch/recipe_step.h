#pragma once

#include "batch/arguments.h"
#include "session/frmMain.h"

#include <functional>

/// A flurn that is made once more, from its recipe.

/// Throws bad_arguments, with the reason, for a file that is no recipe or one that this program can't follow;
/// raises 53, 70, 75 where it can't be read.
void check_recipe_file(frmMain & main, const batch_arguments & arguments);

/// Leaves the session as the window was when that flurn was made. Photos of it that are gone or have changed
/// are named on standard error; those that the caller names take their place, brought into the table by
/// `bring_photos`. Then sets what the caller sets. Throws and raises as check_recipe_file does, raises 53
/// when no photo is left, and throws bad_arguments when the collage would replace one of them.
void start_recipe(frmMain & main, const batch_arguments & arguments,
                  const std::function<void()> & bring_photos);
