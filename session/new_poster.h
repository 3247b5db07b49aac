#pragma once

#include "session/frmMain.h"

/// Turns `main.design_record` into control states and enters the finishing stage.
void new_poster(frmMain & main);
