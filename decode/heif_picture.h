#pragma once

#include "decode/samples.h"
#include "intake/byte_view.h"

/// The main picture of a HEIC or AVIF file. Where the file itself says how it is to be turned, that is done;
/// only where it doesn't, the orientation among its notes counts. Throws decode_fault.
samples heif_picture(byte_view file);
