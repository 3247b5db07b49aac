#pragma once

#include "pack/package_maker.h"

/// What the command line asks for.
struct pack_arguments {
    enum class task { make, check, help, version };
    task wanted = task::make;
    package_request request;
    std::string file;  ///< the package to be made or checked
};

/// A command line that can't be followed; `what` says why, in one line.
struct bad_pack_arguments {
    std::string what;
};

/// Reads the arguments behind the program's name. Throws bad_pack_arguments.
pack_arguments parse_pack_arguments(const std::vector<std::string> & arguments);

/// The text of --help.
std::string pack_usage();
