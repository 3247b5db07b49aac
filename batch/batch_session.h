#pragma once

#include "batch/arguments.h"
#include "session/start/start_up.h"

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
/// for to standard output and every complaint to standard error. `made` means that at least one of the photos
/// is on the collage and that its design was read to the end. Throws bad_arguments for a design, a control, a
/// value or an output that doesn't exist or can't be used, before it begins, and end_of_program when start-up
/// is blocked; raises what start-up raises, and 53 without a usable photo.
exit_status run_batch(const batch_arguments & arguments, const batch_folders & folders);

/// Works off the job list that `arguments` name, each job in a session of its own; tells each in a line on
/// standard error and goes on after one that isn't made. A job whose collage is there is done and passed
/// over. Throws bad_arguments, which names the line, before the first job is begun; raises 53, 70, 75 for a
/// list that can't be read.
exit_status run_jobs(const batch_arguments & arguments, const batch_folders & folders);
