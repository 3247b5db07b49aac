#pragma once

#include "desktop/text_drawing.h"
#include "tests/scripted_desktop.h"

/// A desktop played by the test that draws texts as the program does. A QGuiApplication has to be there.
struct drawing_desktop : scripted_desktop {
    bitmap draw_text(const text_request & request) override { return drawn_text(request); }
    picture_size text_size(const text_request & request) override { return size_of_text(request); }
};
