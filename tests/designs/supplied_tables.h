#pragma once
// The supplied tables, read as plain text, so that a fault of the program's readers can't hide one of the
// tables.
#include <map>
#include <string>
#include <vector>

namespace supplied {

using fields = std::vector<std::string>;
using section_lines = std::map<std::string, std::vector<std::string>>;

std::string bytes_of(const std::string & name);

/// The lines of a table, without their ends; each has to end with CR LF.
std::vector<std::string> lines_of(const std::string & name);

/// The lines below each header, by the name in its brackets.
section_lines sections_of(const std::string & name);

struct design {
    std::string section;
    std::map<std::string, std::string> keys;
    std::string operator[](const std::string & key) const { return keys.contains(key) ? keys.at(key) : ""; }
    bool reserved() const { return (*this)["File"].starts_with("__"); }
    bool grid() const { return (*this)["Style"] == "Fill" || (*this)["Style"] == "Matrix"; }
};

std::vector<design> all_designs();

std::vector<design> starters();

fields split_at_colons(const std::string & line);

struct place {
    int top, left, height, width, rotation, frame, shadow, spare;
    std::string file;
    bool shape() const { return height == 0 || width == 0; }
    bool takes_photo() const { return shape() ? spare == 0 : file.empty(); }
};

std::vector<place> places_of(const design & one);

struct bounds {
    double top = 1e9, left = 1e9, right = -1e9, bottom = -1e9;
};

/// What a tilted photo takes up: it turns clockwise about its own top-left corner.
bounds bounds_of(const place & one);

int photos_taken(const design & one);

bool whole_number(const std::string & text);

std::string art(const std::string & kind, const std::string & file);

}  // namespace supplied
