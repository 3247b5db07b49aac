#pragma once

#include "intake/byte_view.h"

#include <string>

/// The profile of a PNG file's colours, which lies packed among its chunks; empty where there is none or it
/// is damaged.
std::string profile_of_png(byte_view file);
