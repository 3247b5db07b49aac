#pragma once

#include <string>
#include <string_view>

/// Where a finished collage goes.

/// The file that is going to be written: `out`, or what it leads to when it is a link. Throws bad_arguments
/// for a name that tells no kind of file and for a folder, a device, a pipe or a socket; raises 70, 75, 76
/// where no file can be made or the one that is there is write-protected. Empty for standard output.
std::string checked_output(const std::string & out);

/// Puts the picture there, whole or not at all. A pipe whose reader goes, or a disk that fills up, takes a
/// part of what goes to standard output; from the end of a file it is taken back. Raises 61, 70, 75, 76.
void write_output(const std::string & out, std::string_view picture);
