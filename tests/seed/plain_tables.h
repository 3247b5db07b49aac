#pragma once
// The tables of the quick styles, read as plain text, so that a fault of the program's readers can't hide one
// of the tables.
#include <string>
#include <vector>

namespace plain {

struct cell {
    int top, left, height, width;
    int tilt = 0;
    bool tall() const { return height > width; }
    bool wide() const { return width > height; }
    double ratio() const;
};

/// The lines of a table, without their ends; each has to end with CR LF.
std::vector<std::string> lines_of(const std::string & name);

std::vector<std::string> split(const std::string & line);

int number(const std::string & text);

/// The lines between the header `[name]` and the next one, comments left out. Empty without the header.
std::vector<std::string> section(const std::vector<std::string> & lines, const std::string & name);

/// True when the cells cover width by height without a hole, without overlap and without leaving it.
bool tiles(const std::vector<cell> & cells, int width, int height);

}  // namespace plain
