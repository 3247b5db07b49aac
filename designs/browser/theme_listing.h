#pragma once

#include "designs/browser/browser_page.h"
#include "designs/browser/frmThemes.h"
#include "session/frmMain.h"

/// How the poster stands in the browser.
orientation view_of(const frmThemes & window);

/// What a listing does with the list of photo counts.
enum class count_list { kept, made_anew };

/// Lists the page at `page_start` of the designs that pass the filters, and selects its first design, which
/// runs that option's click. Raises 53 and 70 as the catalogue does.
void GetDesigns(frmThemes & window, frmMain & main, count_list counts);
