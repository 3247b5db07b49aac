#pragma once

#include "batch/batch_desktop.h"
#include "batch/batch_session.h"
#include "session/windows.h"
#include "support/files/scratch_folder.h"

/// A session as the program with a window has it, up to the point where the window would be shown.
struct open_session {
    scratch_folder scratch;
    batch_desktop desk;
    windows all;
    /// Throws end_of_program when start-up is blocked; raises what start-up raises.
    open_session(const batch_arguments & arguments, const batch_folders & folders);
};

/// Throws bad_arguments for a design, a control or a value that doesn't exist.
void check_against(frmMain & main, const batch_arguments & arguments);

/// Makes one collage in a session that has just been opened, or prints its controls. Throws and raises as
/// run_batch does.
exit_status make_collage(open_session & running, const batch_arguments & arguments);
