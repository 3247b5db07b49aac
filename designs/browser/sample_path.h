#pragma once

#include "session/frmMain.h"

#include <string>

/// The folder of what belongs to the design in `main.design_record`: those of the user's have all of it in
/// the data folder.
const std::string & base_folder(const frmMain & main);

/// The file of the design's sample as it is seen in that orientation, or of the picture that stands in for a
/// missing one; empty for a design without a sample.
std::string sample_path(const frmMain & main, orientation view);
