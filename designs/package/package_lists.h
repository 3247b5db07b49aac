#pragma once

#include "designs/package/manifest.h"
#include "session/frmMain.h"

#include <set>
#include <string>

/// The two lists to which an import adds: the icons and the catalogue. What a package says about them is
/// gathered and written once, when the import ends: nothing in a package reads them in between.
class package_lists {
public:
    explicit package_lists(frmMain & window) : main(window) {}

    /// Adds an icon's line, unless the list has it already. Raises 53, 70.
    void add_icon(const std::string & line);
    /// Puts a section in its place. False when no number is left for it. Raises 53, 70.
    bool merge(const manifest_command & section);
    /// Writes what was gathered: as if every command had written its list, so that the backup is the list in
    /// front of the last one. A crash at any instant leaves each list old or new. Raises 61, 70, 75.
    void write();

private:
    // A list as it is in front of the last command, as bytes while no command has changed it.
    struct gathered {
        std::string read;
        std::size_t commands = 0;
        text_lines lines, before;
    };
    void read(gathered & list, const std::string & path) const;
    void swap_in(const gathered & list, const std::string & path, const std::string & fresh,
                 const std::string & backup) const;

    frmMain & main;
    gathered icons, catalogue;
    std::set<std::string> known_icons;
    bool added_last = false;  // the last icon's line was new
};
