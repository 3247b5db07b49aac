#pragma once

#include "decode/samples.h"
#include "intake/picture_kind.h"

/// The file as an upright JPEG of sRGB colours, 8 bits a sample, that tells when it was taken and nothing
/// else. Throws decode_fault, and std::bad_alloc.
std::string decoded_file(byte_view file, picture_kind kind);
