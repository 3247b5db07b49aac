#pragma once

#include "session/frmMain.h"

/// The caption of the collage.
void connect_caption(frmMain & main);
