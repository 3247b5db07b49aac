#pragma once

#include <string>

/// True for a photo that is probably still being copied to its place: it was changed within the last minute,
/// and it is empty or a JPEG that ends too early. One that was cut short long ago won't get any longer.
bool is_unfinished(const std::string & photo);
