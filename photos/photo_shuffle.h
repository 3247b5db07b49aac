#pragma once

#include "photos/lists/photo_table.h"
#include "support/random.h"

/// Puts the entries 0 to `last_photo` in a random order: one number is drawn for each entry, which is taken
/// from those still left in their old order. `shuffled_photos` is overwritten.
void shuffle(photo_table & table, const random_source & random);
