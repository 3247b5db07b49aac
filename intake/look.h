#pragma once

#include "intake/intake_photo.h"

#include <vector>

/// Looks at the beginning of a file, without decoding anything: milliseconds for a folder.
intake_photo looked_at(const std::string & path);

/// The photos among the files of a folder, in the order of their names: what has the name or the beginning of
/// a picture. Raises 70, 76.
std::vector<intake_photo> looked_at_folder(const std::string & folder);

/// How many of them need a step before a collage can have them.
std::size_t count_of_needing(const std::vector<intake_photo> & photos);
