#pragma once

#include "designs/catalogue/catalogue_lines.h"
#include "session/frmMain.h"

/// A catalogue that can't be as the program left it: empty, cut, or without the designs that the program
/// can't do without.

/// The user's catalogue, mended where it is damaged. Changes no file; says so where it is damaged, and what
/// helps. Raises 53, 70.
text_lines readable_catalogue(frmMain & main);

/// Puts a mended catalogue in the place of a damaged one, keeps that beside it as "designs.ini.damaged" and
/// says so; does nothing for a sound one. For a session that has the data folder for itself. Raises 53, 61,
/// 70, 75; the catalogue then stands as it was.
void mend_catalogue(frmMain & main);
