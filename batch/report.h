#pragma once

#include "batch/open_session.h"

#include <string>
#include <vector>

/// The libraries that the programs with pictures and text use, with their versions.
std::vector<std::string> libraries_in_use();

/// What a report of a fault needs, "what: how it is", a line each: versions, the system, cores, fonts, the
/// state of the folders. It tells numbers and kinds of places, never a name that the user gave, nor a path;
/// it only looks, so that a data folder that isn't there stays so. Raises nothing: what can't be read is told
/// as that.
std::string report(const batch_folders & folders);
