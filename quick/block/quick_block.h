#pragma once

#include "session/frmMain.h"

/// Finds the block for the slots and writes it as the quick template, with the holes that `chance` makes. A
/// block that isn't in its file leaves an empty template, with a word to the user. Raises as find_block_match
/// and write_quick_template do, and 9 and 6 for faults of the file.
void write_quick_block(frmMain & main, const random_source & chance);
