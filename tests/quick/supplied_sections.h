#pragma once

#include <map>
#include <string>
#include <vector>

/// The lines of a supplied table's sections, by their heads.
using sections = std::map<std::string, std::vector<std::string>>;

/// The table's text.
std::string text_of_table(const std::string & name);

sections sections_of(const std::string & name);
