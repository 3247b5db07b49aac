#pragma once

#include "support/MFreeImage.h"

#include <QImage>

/// Between the house's bitmaps, whose rows count from the bottom, and the toolkit's images, whose rows count
/// from the top. Pixel by pixel the same; what an image has of transparency is dropped.
QImage image_of(const bitmap & source);
bitmap bitmap_of(const QImage & source);
