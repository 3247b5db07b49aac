#pragma once

#include "batch/open_session.h"

/// Exit statuses of the batch program.
enum class exit_status { made = 0, not_made = 1, bad_arguments = 2 };

/// Throws bad_arguments for a design, a set of frames, a control or a value that doesn't exist.
void check_against(frmMain & main, const batch_arguments & arguments);

/// Makes one collage in a session that has just been opened, or prints its controls. Throws and raises as
/// run_batch does.
exit_status make_collage(open_session & running, const batch_arguments & arguments);

/// Runs a whole session without a window: start-up, photos, design, settings, collage. Prints what was asked
/// for to standard output and every complaint to standard error. `made` means that at least one of the photos
/// is on the collage and that its design was read to the end. Throws bad_arguments for a design, a control, a
/// value or an output that doesn't exist or can't be used, before it begins, and end_of_program when start-up
/// is blocked; raises what start-up raises, and 53 without a usable photo.
exit_status run_batch(const batch_arguments & arguments, const batch_folders & folders);
