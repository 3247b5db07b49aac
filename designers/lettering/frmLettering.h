#pragma once

#include "support/forms.h"

struct windows;

/// Takes the text of a lettering. A cancel leaves the tag of the main window's `lblDesign` empty.
struct frmLettering : form {
    frmLettering() : form("frmLettering") { set_caption("L e t t e r i n g   F l u r n"); }

    label lblLettering{*this, "lblLettering", "Text of the poster:"};
    text_box txtLettering{*this, "txtLettering"};

    group frmPlacing{*this, "frmPlacing", "  L e t t e r s  "};
    option_set placing_options;
    option_button optAlign{*this, "optAlign", placing_options, "Align the letters"};
    option_button optOffset{*this, "optOffset", placing_options, "Offset the letters"};
    option_button optSerpent{*this, "optSerpent", placing_options, "Serpentine"};
    check_box chkOverlap{*this, "chkOverlap", "Overlap the letters"};
    check_box chkCenter{*this, "chkCenter", "Center each line"};

    group frmAlphabet{*this, "frmAlphabet", "  A l p h a b e t  "};
    option_set alphabet_options;
    option_button optRounded{*this, "optRounded", alphabet_options, "Rounded"};
    option_button optSturdy{*this, "optSturdy", alphabet_options, "Sturdy"};
    option_button optSerif{*this, "optSerif", alphabet_options, "Serif"};
    picture picRounded{*this, "picRounded"};
    picture picSturdy{*this, "picSturdy"};
    picture picSerif{*this, "picSerif"};

    group frmOrientation{*this, "frmOrientation", "   O r i e n t a t i o n   "};
    option_set orientation_options;
    option_button optPortrait{*this, "optPortrait", orientation_options, "Portrait"};
    option_button optLandscape{*this, "optLandscape", orientation_options, "Landscape"};
    option_button optSquare{*this, "optSquare", orientation_options, "Square"};

    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};
};

/// Hooks its handlers.
void connect_frmLettering(windows & all);
