#pragma once

#include <string>
#include <vector>

/// Makes `count` photos of 12 megapixels in the folder, where they aren't there yet, and gives their paths:
/// hills of colour under fine grain, as JPEG of about 4 MB, every third one upright. Always the same
/// pictures.
std::vector<std::string> big_photos(const std::string & folder, int count);
