#pragma once

#include "designs/templates/location.h"

/// Two ways to bring the locations of a template into another order. Both move whole locations and lose none;
/// the blank record behind the last one stays where it is.

/// Tables of fewer locations than this aren't mixed: the walk would hardly change them.
inline constexpr int fewest_mixed = 8;

/// The step of a mixing, 3 to 8, for a table of `count` locations; the larger the table, the more there are
/// to choose from. `drawn` is in [0, 1).
int mixing_step(int count, double drawn);

/// Swaps the locations from the first on with those on a walk that goes down by `step`. Nothing with fewer
/// than `fewest_mixed`.
void mix(location_table & table, int step);

/// Tables of fewer locations than this aren't shuffled.
inline constexpr int fewest_shuffled = 3;

/// The dealt location that comes first after a shuffle, for a table of at least `fewest_shuffled` locations.
/// `drawn` is in [0, 1).
int first_dealt(int count, double drawn);

/// Deals the locations into `step` + 1 runs, from the last location down, and puts the runs back one after
/// the other, beginning with dealt location `first` and coming round to it. `scratch` is overwritten. Nothing
/// with fewer than `fewest_shuffled`.
void shuffle(location_table & table, location_table & scratch, const order_turn & turn);
