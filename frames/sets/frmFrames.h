#pragma once

#include "support/list_controls.h"
#include "support/numbers.h"

#include <string>
#include <vector>

struct windows;

/// The editor of a frame set: its colours, font, default caption, icon and photo list, with a preview of the
/// upright frame.
struct frmFrames : form {
    frmFrames() : form("frmFrames") { set_caption("C u s t o m   F r a m e s"); }

    picture picFrame{*this, "picFrame"};  ///< the preview
    picture picOutside{*this, "picOutside"};
    button cmdOutside{*this, "cmdOutside", "Outside Color"};
    picture picInside{*this, "picInside"};
    button cmdInside{*this, "cmdInside", "Inside Color"};
    picture picFont_BG{*this, "picFont_BG"};  ///< the caption band
    button cmdCaption{*this, "cmdCaption", "Caption Color"};
    group frameFont{*this, "frameFont"};
    picture picFont_FG{*this, "picFont_FG"};  ///< the letters
    button cmdFont{*this, "cmdFont", "Font"};
    text_box lblFont{*this, "lblFont"};  ///< holds the font of the captions, and shows its name in it
    label lblCaption{*this, "lblCaption", "Default Caption:"};
    text_box txtCaption{*this, "txtCaption"};
    label lblIcon{*this, "lblIcon", "Icon:"};
    entry_box cmbIcons{*this, "cmbIcons"};
    label lblPictures{*this, "lblPictures", "Photo List:"};
    entry_box cmbPhotos{*this, "cmbPhotos"};
    button cmdCaptions{*this, "cmdCaptions", "Add Captions"};
    label lblCount{*this, "lblCount"};  ///< how far the rendering is; hidden at other times
    button cmdSave{*this, "cmdSave", "Save"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    int16 caption_count = 0;           ///< number of the last caption that isn't empty
    std::string current_icon{"None"};  ///< the icon to be selected while the icons are listed
    /// The file of each icon: entry i belongs to item i + 1 of `cmbIcons`, whose item 0 is "None".
    std::vector<std::string> icon_files;
    bool settling = false;   ///< the program sets the controls: no preview for each of them
    bool rendering = false;  ///< a save is going on
};

/// Hooks its handlers.
void connect_frmFrames(windows & all);
