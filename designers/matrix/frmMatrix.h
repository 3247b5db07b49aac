#pragma once

#include "designers/matrix/matrix_choices.h"
#include "support/list_controls.h"

struct windows;

/// Designs a regular grid of photos, shown in small while it changes. A cancel leaves the tag of the main
/// window's `lblDesign` empty.
struct frmMatrix : form {
    frmMatrix() : form("frmMatrix") { set_caption("M a t r i x   F l u r n"); }

    group frmCounts{*this, "frmCounts", "  Number of Photos  "};
    label lblRows{*this, "lblRows", "Rows:"};
    combo_box cmbRows{*this, "cmbRows"};
    check_box chkRowLock{*this, "chkRowLock", "Lock rows"};
    label lblColumns{*this, "lblColumns", "Columns:"};
    combo_box cmbColumns{*this, "cmbColumns"};
    check_box chkColumnLock{*this, "chkColumnLock", "Lock columns"};

    group frmBorders{*this, "frmBorders", "  Poster Borders  "};
    label lblTop{*this, "lblTop", "Top:"};
    combo_box cmbTop{*this, "cmbTop"};  ///< tag, of all four: its upper limit
    label lblLeft{*this, "lblLeft", "Left:"};
    combo_box cmbLeft{*this, "cmbLeft"};
    label lblBottom{*this, "lblBottom", "Bottom:"};
    combo_box cmbBottom{*this, "cmbBottom"};
    label lblRight{*this, "lblRight", "Right:"};
    combo_box cmbRight{*this, "cmbRight"};
    check_box chkLock{*this, "chkLock", "Move together"};

    group frmGaps{*this, "frmGaps", "  Gap between Photos  "};
    label lblHGap{*this, "lblHGap", "Horizontal:"};
    combo_box cmbHGap{*this, "cmbHGap"};
    label lblVGap{*this, "lblVGap", "Vertical:"};
    combo_box cmbVGap{*this, "cmbVGap"};

    group frmPhotos{*this, "frmPhotos", "  Photos  "};
    option_set photo_options;
    option_button optPortraitPhotos{*this, "optPortraitPhotos", photo_options, "Portrait"};
    option_button optLandscapePhotos{*this, "optLandscapePhotos", photo_options, "Landscape"};
    option_button optBoth{*this, "optBoth", photo_options, "Both"};

    group frmPoster{*this, "frmPoster", "  Poster  "};
    option_set poster_options;
    option_button optPortraitPoster{*this, "optPortraitPoster", poster_options, "Portrait"};
    option_button optLandscapePoster{*this, "optLandscapePoster", poster_options, "Landscape"};

    group frmShake{*this, "frmShake", "  Shake the Design  "};
    check_box chkResize{*this, "chkResize", "Resize photos"};
    check_box chkRotate{*this, "chkRotate", "Rotate photos"};

    check_box chkFrames{*this, "chkFrames", "Use custom frame set"};
    picture picSample{*this, "picSample"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdhelp{*this, "cmdhelp", "Help"};

    worn_frames chosen_set{};  ///< counts while `chkFrames` is ticked
    bool settling = false;     ///< the program sets the controls: their handlers do nothing
};

/// Hooks its handlers.
void connect_frmMatrix(windows & all);
