#pragma once

#include <string>

/// The library that reads and draws pictures, as it is loaded: "FreeImage 3.18.0".
std::string picture_version();

/// The library that reads photos by rows. It can't be asked: this is the one that the program was built with:
/// "libjpeg-turbo 2.1.5".
std::string jpeg_version();
