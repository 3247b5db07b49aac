#pragma once

#include "support/files/folder_lock.h"

#include <string>

/// A folder for what a program needs only while it runs, in a place for such folders that belongs to the user
/// alone.
class scratch_folder {
public:
    /// Makes one below `place` (made when missing, closed to other users), after removing those that programs
    /// left there that were killed. Raises 61, 70, 75, 76; 70 as well for a place that isn't the user's own.
    explicit scratch_folder(const std::string & place);
    scratch_folder(const scratch_folder &) = delete;
    scratch_folder & operator=(const scratch_folder &) = delete;
    /// Removes the folder with all that lies in it.
    ~scratch_folder();

    const std::string & path() const { return folder; }

private:
    folder_lock alive;  ///< as long as it is held nobody clears the folder away
    std::string folder;
};

/// Removes every scratch folder of this program, for a program that is being ended from outside. Safe from
/// any thread, while another is still writing there.
void remove_scratch_folders();

/// Has SIGINT, SIGTERM and SIGHUP remove the scratch folders, and what was being written elsewhere, before
/// they end the program, as they would without. Called once, before the program has other threads.
void clear_away_on_signals();

/// The place for the scratch folders of this user: below TMPDIR, else /tmp.
std::string scratch_place();
