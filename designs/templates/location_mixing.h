#pragma once

#include "designs/templates/location_order.h"
#include "session/frmMain.h"

/// Changes the order of `main.design_locations`, by chance. Called before a loop runs, while `count` is the
/// number of locations.

enum class mixing { as_before, forced };

/// Swaps locations by `main.mix_step`, which is chosen on the first use and kept, so that preview and full
/// size mix alike. With `forced` it is chosen anew while `chkShuffle` is ticked. Nothing with fewer than
/// eight.
void mix_locations(frmMain & main, mixing wanted);

/// Deals the locations into `step` + 1 runs and puts them back from a random place on. Nothing with fewer
/// than three. Gives the shuffle, so that it can be done again.
order_turn shuffle_locations(frmMain & main, int step);
