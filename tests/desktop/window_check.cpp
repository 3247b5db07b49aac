#include "tests/desktop/window_check.h"

#include "desktop/looks/letters.h"
#include "tests/desktop/window_views.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

std::vector<window_check::look> & all_looks_at_windows()
{
    static std::vector<window_check::look> looks;
    return looks;
}

// Their names are put before the faults of a view, behind those of the views before.
void look_at(const window_view & view, QWidget & window, std::vector<window_findings> & found)
{
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::size_t before = found[i].faults.size();
        all_looks_at_windows()[i](*view.window, window, found[i]);
        std::for_each(found[i].faults.begin() + static_cast<std::ptrdiff_t>(before), found[i].faults.end(),
                      [&](std::string & fault) { fault.insert(0, view.name + ": "); });
    }
}

std::vector<window_findings> look_in_letters(int pixels)
{
    std::vector<window_findings> found(all_looks_at_windows().size());
    set_letters(pixels);
    filled_session session;
    session.desk.room = {.width = widest_window, .height = highest_window};
    for (const window_view & view : session.views()) {
        const shown_view shown(view);
        EXPECT_TRUE(view.window->loaded()) << view.name << " closes itself in a session like this one";
        look_at(view, shown.window(), found);
    }
    set_letters(smallest_letters);
    return found;
}

}  // namespace

window_check::window_check(look looked_with) : place(all_looks_at_windows().size())
{
    all_looks_at_windows().push_back(looked_with);
}

const window_findings & window_check::in_letters(int pixels) const
{
    static std::map<int, std::vector<window_findings>> seen;
    const auto [at, is_new] = seen.try_emplace(pixels);
    if (is_new)
        at->second = look_in_letters(pixels);
    return at->second.at(place);
}
