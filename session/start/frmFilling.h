#pragma once

#include "support/forms.h"

struct windows;

/// The small window that tells how far the filling of the data folder is, on a disk that takes its time.
struct frmFilling : form {
    frmFilling() : form("frmFilling") { set_caption("T e s s a l o o m   C o n f i g u r a t i o n"); }
    label lblFilling{*this, "lblFilling", "Getting things ready..."};
};

/// Hooks its handlers.
void connect_frmFilling(windows & all);
