#pragma once

#include "session/frmMain.h"

/// The photos of the collage, their order, and how many there are.
void connect_photos(frmMain & main);

/// Goes on in the finishing stage with the photos that have been chosen: reads, counts and draws them.
void go_on_with_chosen_photos(frmMain & main);
