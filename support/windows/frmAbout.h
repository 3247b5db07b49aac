#pragma once

#include "support/colors.h"
#include "support/forms.h"

struct windows;

/// Says what the program is.
struct frmAbout : form {
    frmAbout() : form("frmAbout")
    {
        set_caption("A b o u t   F l u r n s");
        set_back_color(about_background);
        txtAbout.set_back_color(about_background);
        txtAbout.set_fore_color(text_color);
    }
    picture PicIcon{*this, "PicIcon"};
    text_box txtAbout{*this, "txtAbout"};
    button cmdOK{*this, "cmdOK", "OK"};
};

/// Hooks its handlers.
void connect_frmAbout(windows & all);
