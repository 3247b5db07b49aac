#pragma once

#include "support/MFreeImage.h"

#include <string>

/// The bitmap as a TIFF file with these notes, packed without loss, as bytes. Raises 5 for an empty bitmap.
std::string tiff_bytes(const bitmap & image, const picture_notes & notes);
