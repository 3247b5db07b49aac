#pragma once

#include "engine/template_maker.h"
#include "session/frmMain.h"

/// The preview run: from settings, template and photos to a small `tmp/finished.jpg`. An error ends it with
/// one message box. False when it was cancelled or failed: the one before stays the preview on show.
bool gen_sample(frmMain & main);

/// The preview and its way into `picSample`.
void make_preview(frmMain & main, const template_maker & make_template);
