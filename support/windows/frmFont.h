#pragma once

#include "support/list_controls.h"

struct windows;

/// Chooses the font of the caption of the main window, and, while `font_extended` is set there, its size and
/// colour.
struct frmFont : form {
    frmFont() : form("frmFont")
    {
        set_caption("Fonts available");
        ScrSize.set_range(smallest, largest);
    }
    static constexpr int smallest = 1, largest = 400;  ///< points, as the main window takes them

    list_box lstFonts{*this, "lstFonts"};
    text_box txtFont{*this, "txtFont"};  ///< shows the choice
    check_box chkBold{*this, "chkBold", "Bold"};
    check_box chkItalic{*this, "chkItalic", "Italic"};
    check_box chkUnderline{*this, "chkUnderline", "Underline"};
    group frmNeed{*this, "frmNeed"};
    label lblSize{*this, "lblSize", "Font size: "};
    slider ScrSize{*this, "ScrSize"};
    button cmdColor{*this, "cmdColor", "Color"};
    picture picColor{*this, "picColor"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};
};

/// Hooks its handlers.
void connect_frmFont(windows & all);
