#pragma once

#include "designs/catalogue/catalogue_lines.h"

#include <string>
#include <vector>

/// The user's catalogue after a mishap: a disk that was full or lost power, another program's hand.

/// True for a catalogue that neither we nor anyone's hand leaves behind: without any section, with a zero
/// byte, ended in the middle of a section of `supplied` behind which more were, or with lines that are none
/// of a catalogue and without a design that is `supplied` and that the quick styles or the designers can't do
/// without. Never where `supplied` is itself without use: nothing could be brought back from it.
bool is_damaged(const text_lines & own, const text_lines & supplied);

/// What tells of the user's designs beside the catalogue.
struct traces_of_designs {
    text_lines backup;                   ///< an older catalogue; empty when there is none
    std::vector<std::string> templates;  ///< names of the files in the folder of templates
    std::vector<design_to_save> saved;   ///< those of them that a saved design has; their names stay empty
};

/// A whole catalogue made of what can be read in `own`: its sections that have a name and a template, each up
/// to the first line that is no text; all of `supplied` that isn't in it, under another number where another
/// design has its own and the program can't do without it; the user's designs of the backup whose template is
/// there; and the saved ones that no section names, as "Saved design 601".
text_lines mended_catalogue(const text_lines & own, const text_lines & supplied,
                            const traces_of_designs & traces);
