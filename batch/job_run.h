#pragma once

#include "batch/batch_session.h"

/// Works off the job list that `arguments` name, each job in a session of its own; tells each in a line on
/// standard error and goes on after one that isn't made. A job whose collage is there is done and passed
/// over. Throws bad_arguments, which names the line, before the first job is begun; raises 53, 70, 75 for a
/// list that can't be read.
exit_status run_jobs(const batch_arguments & arguments, const batch_folders & folders);
