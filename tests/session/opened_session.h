#pragma once

#include "session/connect_all.h"
#include "session/window_state.h"
#include "support/files/paths.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

/// A session with all its windows hooked, over two fresh folders. The main window isn't loaded yet.
struct opened_session {
    opened_session()
    {
        folder.at("data/tmp/x");
        folder.at("data/piclists/x");
        main.install_folder = folder.at("install");
        main.data_folder = folder.at("data");
        connect_all(all);
    }

    /// The finishing stage of a design that can't be drawn: previews are tried, and each says so.
    void finish()
    {
        desk.keeps_messages = true;
        show_menus(main, false);
        show_work_controls(main, true);
        main.design_record.file = "__missing";
        folder.write("data/tmp/finished.jpg", "the picture of an earlier preview");
        const updating quiet(main);
        main.optPreview.select();
    }

    /// The user's choice in the next photo chooser: a saved list.
    void will_choose_list(const std::string & path);

    /// How many previews were made so far.
    int previews() const { return main.picSample.load_count(); }

    /// How many previews `step` makes.
    template <typename Step>
    int previews_of(Step step)
    {
        const int before = previews();
        step();
        return previews() - before;
    }

    /// Numbers asked from chance so far.
    int draws = 0;

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, random_source{.next = [this] { return ++draws, 0.5; }, .reseed = [] {}}};
    frmMain & main = all.main;
};

/// Checks controls by words such as "cmbFrame-": + enabled, - disabled, ^ visible, _ hidden, 1 ticked or
/// selected, 0 not.
void expect_states(const form & window, std::string_view words);
