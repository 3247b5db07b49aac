#pragma once

#include "support/files/archive.h"

#include <string>
#include <string_view>
#include <vector>

/// The files of a package under construction, and the lines of its manifest.
class package_files {
public:
    /// Adds a file and the line that moves it to `target`, a path below the data folder.
    void add(std::string bytes, const std::string & target);
    void add_line(std::string line) { lines.push_back(std::move(line)); }
    /// All entries of the archive, the manifest first.
    std::vector<archived_file> entries() const;

private:
    std::vector<archived_file> files;
    std::vector<std::string> lines;
};

/// Twelve letters and digits that stand for these bytes.
std::string mark_of(std::string_view bytes);
