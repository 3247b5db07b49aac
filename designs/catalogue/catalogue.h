#pragma once

#include "designs/catalogue/design_name.h"
#include "session/frmMain.h"

#include <string>
#include <string_view>

/// The design catalogue, `designs.ini` of the data folder, read forward only into `main.design_record`.

/// The file itself.
std::string catalogue_path(const frmMain & main);

/// Opens the catalogue from the top; a walk that was open is closed first. Raises 53, 70.
void open_catalogue(frmMain & main);

/// Closes the walk and forgets the section read ahead. Does nothing when none is open.
void close_catalogue(frmMain & main);

/// Puts the defaults into `main.design_record`, those of a section without keys.
void clear_design_record(frmMain & main);

enum class catalogue_start { first, next };

/// Reads the next section, from the top with `first`. True if more sections follow; false comes with a valid
/// record all the same: that of the last section. A catalogue without sections gives a blank record and
/// false.
bool read_design(frmMain & main, catalogue_start start);

/// Reads from the top until "Name=" equals `name`. False when the catalogue has no such design; the caller
/// words it, and the record is that of the last section. Raises 53, 70.
bool find_design(frmMain & main, std::string_view name);

/// Reads the section of that name ("Design602") from the top, if its design has that name. False when there
/// is none; the record is then that of the last section. Raises 53, 70.
bool find_section(frmMain & main, std::string_view section, std::string_view name);

/// All designs, in the order of the catalogue. The record is then that of the last section. Raises 53, 70.
std::vector<listed_design> listed_designs(frmMain & main);

/// What a text that a list showed stands for.
enum class found_design { one, none, several };

/// Reads the design that is shown so: its name where no other design has it, the name with its number ("Heart
/// (602)"), or its section ("Design602"). `several` for a name that more than one design has: none is read.
/// Raises 53, 70.
found_design find_shown_design(frmMain & main, std::string_view text);

/// The first free section from "Design600" to "Design998", its number kept in `main.next_design_number`;
/// empty when all are taken.
std::string GetNextDesign(frmMain & main);

/// A value of a section, cut at 254 bytes; empty when section or key is missing.
std::string GetDesignString(const frmMain & main, std::string_view section, std::string_view key);
