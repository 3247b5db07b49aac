#pragma once

#include "session/frmMain.h"

/// The search for a template that suits the photos at hand.

/// Takes over the photos as they were counted last; a matrix begins anew.
void note_photos(frmMain & main);

/// Counts the slots anew from the photos and the poster that is selected.
void count_slots(frmMain & main);

/// Lowers the slots to what a block can hold, or a scatter; notes in `quick_reduced` that it did.
void clamp_block_counts(frmMain & main);
void clamp_scatter_counts(frmMain & main);

/// Finds the block for the slots, or the scatter, and tells the user of a faulty table. False when there is
/// none. Raises 53, 70, and 9 and 6 for faults of the table.
bool find_block_match(frmMain & main);
bool find_scatter_match(frmMain & main);

/// Tells once that fewer photos are used than there are.
void notice_reduced(frmMain & main);

/// Counts the slots and finds the template of the selected style, block or scatter; blocks need three photos,
/// with fewer it selects scatter. True without a search while the window sets its own controls. Raises as the
/// two searches do.
bool match_quick_style(frmMain & main);
