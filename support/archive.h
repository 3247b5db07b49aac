#pragma once

#include <string>

/// Unpacks all files of the zip archive `source` into the folder `destination`, overwriting. Entries that
/// would leave the destination (`..`, absolute paths, drive letters), links and devices are refused: the
/// unpacking ends there. True when all went through, false on any error; what was unpacked before an error
/// stays.
bool extract_zip(const std::string & source, const std::string & destination);
