#pragma once

#include "support/MFreeImage.h"
#include "support/rectangle.h"

/// Caption cards: a photo with room for writing beside it.

/// Where the photo stands on a card of that size, in pixels. The room for writing is below the photo, on a
/// card that is wider than high at its right.
rectangle photo_on_card(int width, int height);

/// A card of that size and colour with the photo, fitted, in its place; the size is in pixels of the layout,
/// of which `scale` are drawn for one.
bitmap captioned_card(picture_size size, const bitmap & photo, rgb_triple color, int scale = 1);
