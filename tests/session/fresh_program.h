#pragma once

#include "session/start/start_up.h"
#include "session/windows.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <string>

/// A program folder with seed data and a session that hasn't settled its data folder yet.
struct fresh_program {
    fresh_program();

    /// Starts a session that has the data folder for itself.
    void start() { prepare_data_folder(main, choice()); }
    /// Starts one that only reads it.
    void share() { share_data_folder(main, choice(), folder.at("work")); }
    folder_choice choice() const { return {.use_public_folder = true, .public_folder = data}; }
    /// What lies in the data folder under that name.
    bool has(const std::string & name) const;
    std::string text(const std::string & name) const;

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
    frmMain & main = all.main;
    std::string data = folder.at("home/share/tessaloom4");
};

/// The message of a first start.
extern const std::string welcome;
