#pragma once

#include "engine/template_maker.h"
#include "session/frmMain.h"

#include <functional>

/// From settings, template and photos to `tmp/finished.jpg` at full size; opens `frmImage` on it. An error
/// ends the run with one message box.
/// `when_made` is called when the flurn is there and has not been shown yet.
void make_flurn(frmMain & main, const template_maker & make_template,
                const std::function<void()> & when_made = {});
