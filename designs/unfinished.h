#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// What a crash in the middle of saving, deleting or importing leaves behind, and its removal at the next
/// start.

/// Notes files, as paths below the data folder, that belong to a design only once the catalogue names them,
/// or only as long as it does. Raises 61, 70, 75.
void note_unfinished(const frmMain & main, const std::vector<std::string> & files);
void forget_unfinished(const frmMain & main);

/// Deletes what is left over: files of a design that was being saved or deleted, and files and folders under
/// construction. Says nothing and raises nothing: what can't be removed stays.
void remove_leftovers(const frmMain & main);
