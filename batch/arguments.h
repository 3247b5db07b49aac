#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the command line of the batch program asks for.
struct batch_arguments {
    enum class task { make, list, dump, help, version };
    task wanted = task::make;
    std::vector<std::string> photos;  ///< one folder, one list, or files
    std::string design;
    std::string frames;       ///< the frame set that a frame design wears
    std::string quick;        ///< style instead of a design: "block", "scattered", "matrix", "shapes"
    std::string orientation;  ///< "portrait", "landscape", "square"; empty: the one the design was drawn for
    std::vector<std::pair<std::string, std::string>> settings;  ///< control and value, in the order given
    std::optional<std::string> caption;
    std::optional<int> size;  ///< long side in pixels
    std::optional<unsigned long long> seed;
    std::optional<std::string> data_folder;
    bool preview = false;
    bool answers_yes = false;
    std::string out;
};

/// A command line that can't be followed; `what` says why, in one line.
struct bad_arguments {
    std::string what;
};

/// Reads the arguments behind the program's name. Throws bad_arguments.
batch_arguments parse_arguments(const std::vector<std::string> & arguments);

/// The text of --help.
std::string usage();
