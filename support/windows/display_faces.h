#pragma once
#include <string>
#include <vector>

/// Fonts that are drawn for titles, in the order in which they are offered: names of families, as their
/// packages have them.
const std::vector<std::string> & display_faces();

/// The same names, those drawn for titles first, the others in their order.
std::vector<std::string> display_faces_first(std::vector<std::string> installed);

/// The one of those with which captions begin, or nothing where none of the fitting ones is installed.
std::string face_to_begin_with(const std::vector<std::string> & installed);
