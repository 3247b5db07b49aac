#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

/// Brings the record and the template of the quick style that is selected into force. A record that the
/// catalogue doesn't have is told to the user, and the run goes on with the one at hand. Nothing while no
/// quick style is active.
void make_quick_template(frmMain & main, run_size size);
