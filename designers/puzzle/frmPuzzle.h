#pragma once

#include "support/list_controls.h"

struct windows;

/// Designs a jigsaw puzzle. A cancel leaves the tag of the main window's `lblDesign` empty.
struct frmPuzzle : form {
    frmPuzzle() : form("frmPuzzle") { set_caption("P u z z l e   F l u r n"); }

    group frmGrid{*this, "frmGrid", "  P i e c e s  "};
    label lblRows{*this, "lblRows", "Number of rows"};
    combo_box cmbRows{*this, "cmbRows"};
    label lblColumns{*this, "lblColumns", "Number of columns"};
    combo_box cmbColumns{*this, "cmbColumns"};
    label lblBlanks{*this, "lblBlanks", "Number of missing pieces"};
    combo_box cmbBlanks{*this, "cmbBlanks"};
    check_box chkBest{*this, "chkBest", "Set for best row/column fit"};
    check_box chkEdges{*this, "chkEdges", "Include straight edge pieces"};

    group frmPieces{*this, "frmPieces", "  P h o t o s  "};
    option_set piece_options;
    option_button optOne{*this, "optOne", piece_options, "One puzzle piece per photo"};
    option_button optFour{*this, "optFour", piece_options, "Four puzzle pieces per photo"};

    group frmOrientation{*this, "frmOrientation", "   O r i e n t a t i o n   "};
    option_set orientation_options;
    option_button optPortrait{*this, "optPortrait", orientation_options, "Portrait"};
    option_button optLandscape{*this, "optLandscape", orientation_options, "Landscape"};

    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    bool settling = false;  ///< the program sets the controls: their handlers do nothing
};

/// Hooks its handlers.
void connect_frmPuzzle(windows & all);
