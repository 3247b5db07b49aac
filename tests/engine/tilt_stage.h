#pragma once

#include "engine/pixels/ornaments.h"
#include "session/frmMain.h"
#include "support/rectangle.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <string>

/// A session with the supplied rotation table and a white sheet, ready to draw tilted photos on
/// `main.run.canvas`.
struct tilt_stage {
    tilt_stage();
    /// Frame and shadow of the photo as the loops would settle them: `cmbFrame` holds the frame of the full
    /// size.
    void wear(int of_list, int of_shadow_list);

    /// Puts the photo there, turned, with what it wears.
    void draw(const bitmap & photo, const rectangle & area, int rotation);
    ornaments worn(int rotation) const;

    scripted_desktop desk;
    frmMain main;
    int frame = 0, shadow = 0;  ///< in force for the next photo
};

/// The folder that all stages take as `install_folder`.
const temporary_folder & tilt_folder();

inline constexpr int white_side = 1500;  ///< of its white sheet
