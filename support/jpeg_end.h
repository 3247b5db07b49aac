#pragma once

#include <string>

/// True for a JPEG whose data end before its last pixel, or before its first one, as a copy that broke off
/// does. A file without the mark of its end, but with every pixel, is whole.
bool is_cut_short(const std::string & path);

/// True for a file whose last two bytes are the mark of a JPEG's end.
bool has_mark_of_end(const std::string & path);
