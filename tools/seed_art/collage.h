#pragma once
#include <QImage>
#include <QString>

/// A small collage of the photos of a folder, as `layout` says: its first line holds width and height of the
/// poster and the width of the frames; each further line left, top, width, height and tilt of a place, in
/// pixels of the poster, the tilt in degrees about the corner, clockwise. Tall places take the tall photos,
/// by name; wide ones the wide. Throws std::runtime_error.
QImage collage(const QString & layout, const QString & photo_folder, int width, int height);
