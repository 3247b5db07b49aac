#pragma once

#include "designs/browser/frmThemes.h"
#include "session/frmMain.h"

/// Steps through the pages and designs of the browser.

/// The slot of that index, 0 to 14.
option_button & slot_of(frmThemes & window, int index);

/// The click of `cmdPage_plus`: `page_start` points there already.
void list_next_page(frmThemes & window, frmMain & main);

/// The click of `cmdPage_minus`.
void list_page_before(frmThemes & window, frmMain & main);

/// Selects the design behind or before the selected one, on the next page or the one before where this page
/// ends. The first and the last design of all stay selected.
void select_next_design(frmThemes & window);
void select_previous_design(frmThemes & window);

/// What the keyboard does: the page keys page, and while a design has the keyboard up and down go as
/// `cmdPrevious` and `cmdNext` do, left and right change the column. False for a key that stays as usual.
bool move_about(frmThemes & window, move_key pressed, const control * focused);
