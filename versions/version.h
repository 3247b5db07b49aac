#pragma once

#include <string>
#include <vector>

/// "0.1.0"
std::string own_version();

/// The commit that the build was made from, shortened, with "+" behind it where its sources differed from
/// that; empty where nothing told which it was.
std::string built_from();

/// "GCC 12.2.0"
std::string compiler();

/// What `--version` prints: a line with program, version and commit, one with the libraries in use.
std::string version_told(const std::string & program, const std::vector<std::string> & libraries);
