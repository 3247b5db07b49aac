#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

/// Chance for the holes of a quick template. A preview draws anew and notes its numbers in
/// `main.collage.holes_shown`; a full run gets the numbers of the preview that was drawn last, and new ones
/// where those don't go far enough, so that the poster has its holes where they were seen. The source lives
/// as long as `main`; asking for a preview's forgets the numbers of the one before.
random_source hole_chance(frmMain & main, run_size size);
