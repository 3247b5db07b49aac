#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

#include <string>
#include <vector>

/// Brings the template of the current design into `main.design_locations` and derives `work_style`,
/// `min_location`, `collage_margin` and the three matrix switches. Any error ends it with its one message
/// box; what was read so far stays. A design that isn't in `design_list` has no locations, without a word.
void read_template(frmMain & main, run_size size);

/// The lines of that template as they stand, those that count. Raises 53, 70, 75 when it can't be read.
std::vector<std::string> lines_of_template(const frmMain & main, run_size size);

/// Turns the locations by a quarter: all of them, or in a grid the odd ones. They are pixels of the collage,
/// or, with `main.in_preview`, of its preview. Raises overflow (6).
void turn_locations(frmMain & main);

/// Changes the aspect of the locations by fixed factors, from 2 by 3 to 3 by 4. Raises overflow (6).
void stretch_locations(frmMain & main);
