#pragma once

#include <QString>

#include <string_view>

/// A chooser's filter in the toolkit's words: "Image files |*.jpg;*.gif" becomes "Image files (*.jpg *.gif)",
/// further pairs follow behind ";;". Patterns take either case of the letters, as users expect of endings.
QString toolkit_filter(std::string_view filter);
