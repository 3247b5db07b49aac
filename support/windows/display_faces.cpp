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
    static const std::vector<std::string> names{"Quicksand",      "Linux Libertine Display O",
                                                "EB Garamond",    "Yanone Kaffeesatz",
                                                "League Spartan", "Lobster Two",
                                                "Dancing Script", "Playfair Display",
                                                "Josefin Sans"};
    return names;
}

std::vector<std::string> display_faces_first(std::vector<std::string> installed)
{
    std::ranges::stable_sort(installed, {}, rank_of);
    return installed;
}
