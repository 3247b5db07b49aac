#pragma once

#include "session/frmMain.h"

#include <string>

/// Opens a recipe: the finishing stage is as it was when that flurn was made. Photos that are gone are looked
/// for where the user says; what is gone or has changed is named once, the rest is laid out. What can't be
/// opened is told, and all stays as it was. For the choosing stage.
void open_flurn(frmMain & main, const std::string & file);
