#include "support/windows/display_faces.h"

#include <algorithm>

namespace {

// How far from the front of the list a name is offered; those that aren't in it come last, all alike.
std::ptrdiff_t rank_of(const std::string & name)
{
    return std::ranges::find(display_faces(), name) - display_faces().begin();
}

}  // namespace

const std::vector<std::string> & display_faces()
{
    static const std::vector<std::string> names{
        "League Spartan", "EB Garamond",    "Linux Libertine Display O", "Yanone Kaffeesatz", "Quicksand",
        "Lobster Two",    "Dancing Script", "Playfair Display",          "Josefin Sans"};
    return names;
}

std::string display_face_of(const std::vector<std::string> & installed)
{
    for (const std::string & name : display_faces())
        if (std::ranges::find(installed, name) != installed.end())
            return name;
    return {};
}

std::vector<std::string> display_faces_first(std::vector<std::string> installed)
{
    std::ranges::stable_sort(installed, {}, rank_of);
    return installed;
}
