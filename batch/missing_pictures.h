#pragma once

#include "session/frmMain.h"

#include <string>

/// The first picture that the collage made last was to show, beside the photos, and that isn't there: one
/// that the template brings, the mask of a shape, or the background. Empty when nothing is missing. The
/// session lays its collage without them and says nothing.
std::string missing_picture(const frmMain & main);
