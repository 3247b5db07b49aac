#pragma once

#include "designs/catalogue/design_name.h"
#include "session/frmMain.h"

#include <string>
#include <vector>

/// The user's own designs: kept from a collage, listed, deleted. A crash at any instant leaves the catalogue
/// old or new, and each design that it names whole.

/// True if no design has this name, in either case; tells the user otherwise. Raises 53, 70.
bool check_design_name(frmMain & main, const std::string & name);

/// True when a list would show the name: one of blanks or a pair of quotes reads as none. One with a line
/// break or another control character, which could be pasted, is no name either; the user is told.
bool check_name_text(frmMain & main, std::string_view name);

/// Keeps the layout of the last finished Flurn as the design `next_design_number`: template, sample picture,
/// description, section. Its working template is gone afterwards; it stays when a step before fails. Raises
/// 53 when it was never written, 61, 70.
void save_design(frmMain & main, const std::string & name, const std::string & description);

/// The designs 500 to 799 that aren't the system's, in the order of their numbers.
std::vector<listed_design> own_designs(const frmMain & main);

/// Deletes that design, of a section above 499, with the files that no other design uses. False when there is
/// no design of that name in its section. Raises 53, 61, 70.
bool delete_design(frmMain & main, const listed_design & design);

/// Deletes a file if it is there, a write-protected one too. Raises 70.
void delete_if_exists(const std::string & path);
