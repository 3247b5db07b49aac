#pragma once

#include "session/frmMain.h"

#include <string>

/// Photos that can't be used are left out and named; the run, the folder or the list goes on.

/// Forgets what was left out: other photos have been chosen.
void forget_left_out(frmMain & main);

/// Leaves a photo out of this run and notes it; `path` may be its thumbnail. The fault is looked for when it
/// isn't told.
void leave_out(frmMain & main, const std::string & path);
void leave_out(frmMain & main, const std::string & path, photo_fault fault);

/// True for a photo of the table that was left out of this run.
bool is_left_out(const frmMain & main, int index);

/// True while the table has a photo that this run hasn't left out.
bool has_usable_photo(const frmMain & main);

/// Names those left out that haven't been named yet, in one box with the remedy; nothing when there are none.
void tell_left_out(frmMain & main);

/// Names all of them, whether they were named before or not: none is left for this run. Says nothing that the
/// run has said already.
void tell_none_usable(frmMain & main);

/// Tells, in these words, that no photo fits the design; the same box names those left out that haven't been
/// named yet, and where none can be used at all, every one. A preview doesn't repeat what the user knows.
void tell_no_match(frmMain & main, const std::string & text);

/// Why that photo, which can't be used, can't be.
photo_fault fault_of(const std::string & photo);

/// "/photos/a.jpg: it isn't there any more", in one line.
std::string line_of(const left_out_photo & photo);
