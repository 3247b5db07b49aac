#pragma once

#include "designs/templates/run_size.h"

#include <functional>

struct frmMain;

/// Given to a run by whoever starts it: brings the record and the template of the quick style that is
/// selected into force and does nothing without one. The engine knows templates and none of their makers.
using template_maker = std::function<void(frmMain & main, run_size size)>;
