#pragma once

#include <string_view>

/// The ICC profile of sRGB, in which all pictures of the program are: about 600 bytes, the same ones always.
std::string_view srgb_profile();
