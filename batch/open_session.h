#pragma once

#include "batch/arguments.h"
#include "batch/batch_desktop.h"
#include "session/start/start_up.h"
#include "session/windows.h"
#include "support/files/scratch_folder.h"

#include <string>

/// Where the program lies, where the user's data is read, and where scratch folders are made.
struct batch_folders {
    std::string install_folder;
    folder_choice data;
    std::string scratch;
};

/// A session as the program with a window has it, up to the point where the window would be shown.
struct open_session {
    scratch_folder scratch;
    batch_desktop desk;
    windows all;
    /// Throws end_of_program when start-up is blocked; raises what start-up raises.
    open_session(const batch_arguments & arguments, const batch_folders & folders);
};
