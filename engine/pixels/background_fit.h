#pragma once

#include "designs/templates/poster_shape.h"
#include "support/MFreeImage.h"

#include <string>
#include <string_view>

/// The background picture and how it comes to lie on the canvas.

/// Alpha for a blend in percent: 0 below 5, `plain_copy` above 95, in between 2.56 a percent.
int blend_alpha(double percent);

/// The full-size picture that stands behind one of the small ones of the previews: the folder "preview" and
/// the name's "p_" taken out. Any other path as it is.
std::string full_size_picture(std::string_view path);

/// The small picture of a design's own background, relative to the program's folder. Without a folder in its
/// name a picture has no small one and is taken itself.
std::string preview_picture(std::string_view picture);

/// Cut to the rectangle in the middle, the longer side evenly.
bitmap squared(const bitmap & image);

/// The picture in the size of a preview's collage: 300 by 450, 450 by 300, or for a square one the middle of
/// the picture, 300 by 300.
bitmap preview_background(const bitmap & image, poster_shape shape);

/// The picture mirrored beyond its right and lower edge up to that size, twice its own at most: a preview's
/// collage is larger than the picture behind it. A picture that is as large comes back as it is.
bitmap continued(const bitmap & image, int width, int height);
