#pragma once

#include <functional>

/// Given to the loops of a run by whoever drives it, and called before each image: shows that something goes
/// on and lets events through. A wish to end the run that came in meanwhile stands in `run.cancel_requested`.
using sign_of_life = std::function<void()>;
