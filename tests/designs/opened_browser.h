#pragma once

#include "tests/session/opened_session.h"

#include <string>
#include <string_view>
#include <vector>

/// A section "[DesignNNN]" with a name and further lines, each "Key=Value".
std::string design_section_text(int number, const std::string & name, const std::vector<std::string> & lines);

/// A catalogue of so many upright designs that tell nothing else, named "n1", "n2", …
std::string plain_designs(int count);

/// The design browser over a catalogue, as it is when it has been opened.
struct opened_browser : opened_session {
    /// Writes the catalogue and loads the browser, as a catalogue with no more than it shows.
    explicit opened_browser(std::string_view catalogue);

    frmThemes & browser = all.themes;

    /// The slots that show something: "0:n1 8:n2".
    std::string listed() const;
    /// Caption of the selected slot, empty when none is.
    std::string selected() const;
};
