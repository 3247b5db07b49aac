#pragma once

#include "engine/template_maker.h"
#include "session/frmMain.h"

/// From settings, template and photos to `tmp/finished.jpg` at full size; opens `frmImage` on it. An error
/// ends the run with one message box.
void make_flurn(frmMain & main, const template_maker & make_template);
