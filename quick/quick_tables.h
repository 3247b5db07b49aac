#pragma once

#include "quick/blank_run.h"
#include "session/frmMain.h"
#include "support/files/text_file.h"
#include "support/list_controls.h"

#include <functional>
#include <string_view>
#include <vector>

/// The files of the quick styles: tables in the program's own folder, and the template that is written.

/// Reads a table with `work`. Raises 53, 70 when it can't be opened; what `work` raises names the table.
void with_table(const frmMain & main, std::string_view name, const std::function<void(line_source &)> & work);

/// Writes `designs/__quick` anew. Raises 61, 70, 75, 76; the old one then stays.
void write_quick_template(const frmMain & main, const std::vector<std::string> & lines);

/// The holes that `cmbBlanks` asks for, at most one in the longest template; chance starts anew.
blank_run start_blanks(const frmMain & main, const random_source & chance);

/// The number in a list of the window in whole pixels. Raises overflow (6).
int pixels_in(const combo_box & list);

/// The spacing that `cmbSpace` holds, in whole pixels inside the range that it offers.
int spacing_in(const frmMain & main);
