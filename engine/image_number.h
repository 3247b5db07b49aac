#pragma once

#include "session/frmMain.h"

/// Reckons how many images the locations, brought to the canvas, will show.
void count_images(frmMain & main);

/// The sign of life of a run in the window: shows which image is being worked on, of how many where the run
/// takes its time, and lets events through.
void show_image_number(frmMain & main);

/// Takes text and bar away again at the end of a run.
void hide_image_number(frmMain & main);
