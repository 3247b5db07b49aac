#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The tables that come with the program, the shapes of photos and the sheet below tilted ones: some collages
/// can't be made without them.

/// Paths of those that are missing, closed to the user, empty, cut, or something else.
std::vector<std::string> spoiled_tables(const frmMain & main);

/// Names them in one message, ten at most, with what helps; says nothing when there are none.
void tell_spoiled_tables(frmMain & main);
