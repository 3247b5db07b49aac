#include "versions/page_versions.h"

#include <qpdf/qpdf-c.h>

#include <tiffio.h>

// Its first line is "LIBTIFF, Version 4.5.0".
std::string tiff_version()
{
    const std::string told = TIFFGetVersion();
    const std::string line = told.substr(0, told.find('\n'));
    return "libtiff " + line.substr(line.rfind(' ') + 1);
}

std::string pdf_version()
{
    return std::string("qpdf ") + qpdf_get_qpdf_version();
}
