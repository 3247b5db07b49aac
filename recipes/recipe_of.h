#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

#include <memory>

/// From the window to a recipe.

/// The recipe of the flurn that a full-size run would make now; `made` stands in it as the time. What can't
/// be read is left out: a photo that is gone stands there without size and time.
recipe recipe_of(frmMain & main, const std::string & made);

/// The preview that is on show, as the bytes of its file; nullptr when there is none. A full-size run leaves
/// its flurn in the same file, so what was shown before is remembered.
std::shared_ptr<const std::string> preview_on_show(frmMain & main);
