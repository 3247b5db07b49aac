#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The user's frame sets: the folders under `frames` of the data folder, each named as its set.

/// Lists them in the file system's order. A set that was begun and never named is deleted on the way. Raises
/// 70, 75, 76.
std::vector<std::string> start_custom_frames(const frmMain & main);

/// Deletes the files of a set and its folder; a folder inside it stays and fails the rest. Raises 70, 75, 76.
void delete_folder(const std::string & path);
