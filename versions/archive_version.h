#pragma once

#include <string>

/// The archive library as it is loaded: "libarchive 3.6.2".
std::string archive_version();
