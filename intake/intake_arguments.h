#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What the command line of tessaloom-intake asks for.
struct intake_arguments {
    enum class task : std::uint8_t { prepare, help, version };
    task wanted = task::prepare;
    std::vector<std::string> paths;  ///< files, folders and photo lists
    std::string list;                ///< photo list to be written; empty: none
    std::optional<std::string> data_folder;
    std::optional<std::uint64_t> room;  ///< bytes that all copies may have
    bool deep = false;
};

/// A command line that can't be followed.
struct bad_intake_arguments {
    std::string what;
};

/// Reads the words behind the program's name: "--opt value" or "--opt=value". Throws bad_intake_arguments.
intake_arguments parse_intake_arguments(const std::vector<std::string> & words);

std::string intake_usage();
