#pragma once

#include "decode/samples.h"
#include "intake/byte_view.h"

#include <optional>

/// JPEG files: the one file that knows the codec's own interface.

/// The pixels. Throws decode_fault.
samples jpeg_picture(byte_view file);

/// The same file upright, without any loss and without remarks; nothing where its blocks don't allow that, as
/// with a width that ends inside a block. Throws decode_fault.
std::optional<std::string> turned_without_loss(byte_view file, int orientation);

/// Samples of RGB, 8 bits each, as a JPEG of quality 95 that keeps the colour of each pixel. Throws
/// decode_fault.
std::string jpeg_of_samples(const samples & picture);
