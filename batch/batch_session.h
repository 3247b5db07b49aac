#pragma once

#include "batch/arguments.h"
#include "session/start_up.h"

#include <string>

/// Exit statuses of the batch program.
enum class exit_status { made = 0, not_made = 1, bad_arguments = 2 };

/// Where the program lies, where the user's data is read, and where scratch folders are made.
struct batch_folders {
    std::string install_folder;
    folder_choice data;
    std::string scratch;
};

/// Runs a whole session without a window: start-up, photos, design, settings, collage. Prints what was asked
/// for to standard output and every complaint to standard error. Throws bad_arguments for a design, a control
/// or a value that doesn't exist, and end_of_program when start-up is blocked; raises what start-up raises.
exit_status run_batch(const batch_arguments & arguments, const batch_folders & folders);
