#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The tables that come with the program, each of which some collages can't be made without.

/// Paths of those that are missing, closed to the user, empty, cut in a line, or no table of that kind.
std::vector<std::string> spoiled_tables(const frmMain & main);

/// Names them in one message, with what helps; says nothing when there are none.
void tell_spoiled_tables(frmMain & main);
