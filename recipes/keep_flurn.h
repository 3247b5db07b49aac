#pragma once

#include "session/frmMain.h"

#include <string>

/// How a flurn leaves its recipe.

/// Notes the recipe of the full-size run that is about to begin. Nothing in a session that shares its data
/// folder.
void note_flurn(frmMain & main);

/// Keeps it, with a small picture, when the run has made its flurn. Where that fails the run goes on, and the
/// user is told once a session.
void keep_flurn(frmMain & main);

/// Keeps the recipe of the flurn that is at hand beside its picture: "holiday.flurn" beside "holiday.jpg".
/// Asks before a file that is there is overwritten; tells what can't be written.
void keep_beside(frmMain & main, const std::string & picture);
