#pragma once

#include <string>

/// The libraries that write posters for print, as they are loaded: "libtiff 4.5.0", "qpdf 11.3.0".
std::string tiff_version();
std::string pdf_version();
