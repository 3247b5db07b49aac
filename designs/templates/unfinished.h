#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// What a crash in the middle of saving, deleting or importing something leaves behind, and its removal at
/// the next start.

/// Notes files, as paths below the data folder, that belong to a design only once the catalogue names them,
/// or only as long as it does. Raises 61, 70, 75.
void note_unfinished(const frmMain & main, const std::vector<std::string> & files);
void forget_unfinished(const frmMain & main);

/// Moves a folder that goes, or is made anew, out of the way, whole; nothing when it isn't there. `place` is
/// a path below the data folder. It comes back by put_back, unless forget_set_aside is called first. Raises
/// 61, 70, 75.
void set_aside(const frmMain & main, const std::string & place);
void forget_set_aside(const frmMain & main);
/// Puts every folder that is still set aside back in its place, instead of what has been made there. Raises
/// 70, 75.
void put_back(const frmMain & main);

/// Deletes what is left over: files of a design that was being saved or deleted, and files and folders under
/// construction; puts folders back that a broken-off import was making new. Says nothing and raises nothing:
/// what can't be removed stays.
void remove_leftovers(const frmMain & main);
