#include "versions/archive_version.h"

#include <archive.h>

std::string archive_version()
{
    return archive_version_string();
}
