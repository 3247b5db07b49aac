#pragma once

#include "session/frmMain.h"

#include <string>

/// Where the template file of that name lies: a work file, and one that this session keeps a copy of, in the
/// work folder, any other in `designs` of the data folder.
std::string template_path(const frmMain & main, const std::string & file);

/// Keeps a copy of the template of the current design in the work folder of a session that shares the data
/// folder, so that nothing that others do to a design of the user's reaches its run. False when they have
/// changed the design since the catalogue was read. Raises 53, 61, 70.
bool keep_template(const frmMain & main);
