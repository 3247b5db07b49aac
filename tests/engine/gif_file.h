#pragma once

#include "support/MFreeImage.h"

#include <map>
#include <string>
#include <vector>

/// A GIF file, as bytes: one letter a pixel, one text a row from the top, all of the same length; `colors`
/// gives the colour of a letter, at most 128 of them.
std::string gif_of(const std::vector<std::string> & rows, const std::map<char, rgb_triple> & colors);
