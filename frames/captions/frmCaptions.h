#pragma once

#include "support/forms.h"
#include "support/numbers.h"

#include <deque>
#include <string>
#include <vector>

struct windows;

/// The captions of a frame set, beside the photo that each goes with when the set is tied to a photo list.
struct frmCaptions : form {
    static constexpr int box_count = 36;

    frmCaptions() : form("frmCaptions")
    {
        set_caption("C u s t o m   F r a m e   C a p t i o n s");
        for (int i = 0; i < box_count; ++i) {
            lblCaptions.emplace_back(*this, "lblCaptions_" + std::to_string(i));
            txtCaptions.emplace_back(*this, "txtCaptions_" + std::to_string(i));
        }
    }

    std::deque<label> lblCaptions;
    std::deque<text_box> txtCaptions;
    picture imgCaption{*this, "imgCaption"};  ///< the photo of `current_box`
    button cmdInsert{*this, "cmdInsert", "Insert"};
    button cmdRemove{*this, "cmdRemove", "Remove"};
    button cmdDone{*this, "cmdDone", "Done"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    int16 caption_boxes = box_count;  ///< boxes in use
    int16 current_box = 0;            ///< the box that has the keyboard
    std::vector<std::string> list_photos;
};

/// Hooks its handlers.
void connect_frmCaptions(windows & all);
