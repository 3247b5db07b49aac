#pragma once

#include "designs/catalogue/catalogue_lines.h"
#include "session/frmMain.h"

#include <string>
#include <string_view>

/// The designs that come with the program, and how those of a newer program reach a catalogue that is the
/// user's by now.

/// Name of the file in the data folder that tells which designs were supplied last, as they were then.
inline constexpr std::string_view supplied_catalogue = "designs.supplied";

/// The catalogue as it is supplied. In a folder that is also the data folder `designs.ini` is the user's, so
/// that the package brings a second copy, `designs.seed`.
std::string seed_catalogue_path(const frmMain & main);

/// The user's catalogue, `own`, with what a newer program supplies. Raises 53, 70.
text_lines newer_catalogue(const frmMain & main, const text_lines & own);

/// Rewrites the user's catalogue so, when the program supplies other designs than last time. Raises 53,
/// 61, 70.
void take_newer_designs(const frmMain & main);
