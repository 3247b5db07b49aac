#pragma once

#include "support/desktop.h"

#include <string>
#include <vector>

/// Text through Qt's fonts, without a window. A QGuiApplication has to be there.

/// The text in one line, smoothed, in a bitmap as wide as the text and `extra_width` and as high as its line.
/// No bitmap for an empty text.
bitmap drawn_text(const text_request & request);

/// The size of that bitmap.
picture_size size_of_text(const text_request & request);

/// The names of the installed fonts, in alphabetical order; before them those that only stand for a font of
/// that kind, since a list of fonts passes its first over.
std::vector<std::string> installed_fonts();
