#pragma once

#include "tests/session/opened_session.h"

#include <string>
#include <vector>

/// Small tables for the quick styles below `folder`/install: blocks and scatters for two portrait photos and
/// one or two landscape ones on every poster, a scatter of a dozen, and grids.
void write_quick_tables(const temporary_folder & folder);

/// A loaded session with those tables, the two records of the quick styles and a list of small photos.
struct quick_session : opened_session {
    quick_session();

    /// Makes so many photos and the list of them; what was there before goes.
    void make_photos(int portrait, int landscape);
    /// The user's choice in the next photo chooser.
    void will_choose_list();
    void will_choose_folder();
    void will_choose_selection();
    void will_cancel();

    /// The whole way into the finishing stage, with two photos of either orientation. Whether they are to be
    /// shuffled when they run out won't be asked.
    void start();
    /// The same with other photos.
    void start(int portrait, int landscape);

    /// The lines of the template that was written last.
    std::vector<std::string> written() const;
    /// Forgets it, so that a new one shows.
    void forget_written();

    std::vector<std::string> photos;
    std::string list;
};

/// True when the step writes a template and draws it once.
bool draws_anew(quick_session & session, const std::function<void()> & step);
