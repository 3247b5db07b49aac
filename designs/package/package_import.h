#pragma once

#include "session/frmMain.h"

/// Takes in a design package: a zip file whose manifest says what to make, move and merge.

/// Asks for the package and imports it. Each file that is rewritten is old or new at any instant, and nothing
/// outside the folders for designs, frames and pictures is touched: a package that asks for that is refused
/// before anything is done. Raises what the file system raises.
void import_package(frmMain & main);
