#pragma once

#include "session/frmMain.h"

/// Numbers by which the user can tell who found no template.
inline constexpr int block_caller = 1, scatter_caller = 4, square_caller = 5, landscape_caller = 6,
                     portrait_caller = 7;

/// Says that no template fits the photos.
void tell_no_template(frmMain & main, int caller);
