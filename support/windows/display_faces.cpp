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
    static const std::vector<std::string> names{"Vollkorn SemiBold",
                                                "Vollkorn",
                                                "Vollkorn Black",
                                                "Manrope ExtraBold",
                                                "Inter Display Semi Bold",
                                                "Quicksand Medium",
                                                "Quicksand",
                                                "Roboto Slab",
                                                "Bebas Neue",
                                                "Lobster Two",
                                                "Leckerli One",
                                                "Dancing Script",
                                                "Linux Libertine Display O",
                                                "EB Garamond",
                                                "Yanone Kaffeesatz",
                                                "League Spartan",
                                                "Playfair Display",
                                                "Josefin Sans"};
    return names;
}

std::vector<std::string> display_faces_first(std::vector<std::string> installed)
{
    std::ranges::stable_sort(installed, {}, rank_of);
    return installed;
}

std::string face_to_begin_with(const std::vector<std::string> & installed)
{
    // A caption keeps to the line of its face: these have room in it for what stands on a capital and for
    // what hangs below a letter.
    for (const char * name : {"Vollkorn SemiBold", "Vollkorn"})
        if (std::ranges::find(installed, name) != installed.end())
            return name;
    return {};
}
