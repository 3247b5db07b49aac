#include "versions/picture_versions.h"

#include <FreeImage.h>
#include <jconfig.h>

std::string picture_version()
{
    return std::string("FreeImage ") + FreeImage_GetVersion();
}

std::string jpeg_version()
{
    constexpr int number = LIBJPEG_TURBO_VERSION_NUMBER;  // 2001005 is 2.1.5
    return "libjpeg-turbo " + std::to_string(number / 1000000) + "." + std::to_string(number / 1000 % 1000) +
           "." + std::to_string(number % 1000);
}
