#pragma once

#include <string>
#include <vector>

/// What a package is made of.
struct package_request {
    std::string data_folder;
    std::vector<std::string> designs, frames, icons;  ///< by their names
    std::string title;                                ///< empty: the first of the names above
};

/// Something that was asked for can't be packed; `what` says why, in one line.
struct not_packed {
    std::string what;
};

/// The package as the bytes of a zip. The files of designs and icons get names of their own in it, made from
/// what they hold: the same design always gets the same names, and an import can't land on a file of whoever
/// takes it in. Designs come behind all others there, under a number of that catalogue's. What the import
/// would refuse isn't made. Throws not_packed; raises 53, 70.
std::string package_bytes(const package_request & request);
