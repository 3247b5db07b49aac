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

/// The size to which a picture is scaled for a preview's collage: 300 by 450, 450 by 300, and for a square
/// one the way round of the picture, whose middle is wanted.
picture_size preview_background_size(picture_size picture, poster_shape shape);

/// What a preview's collage shows of a picture scaled to that size: for a square one the middle, 300 by 300.
bitmap preview_background(bitmap scaled, poster_shape shape);

/// The picture mirrored beyond its right and lower edge up to that size, twice its own at most: a preview's
/// collage is larger than the picture behind it. A picture that is as large comes back as it is.
bitmap continued(const bitmap & image, int width, int height);
