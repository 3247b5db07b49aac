#pragma once

#include "decode/samples.h"
#include "intake/byte_view.h"

/// A camera's raw file: the picture that the camera put into it, where that is large enough for a poster,
/// else one developed from the sensor's values, in sRGB by the camera's white balance. Throws decode_fault.
samples raw_picture(byte_view file);
