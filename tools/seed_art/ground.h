#pragma once
#include <QImage>
#include <QString>

/// The page of a drawing in its own size: first the stuff that its <desc> names (textures.h), then the
/// drawing over it, in levels finer than a file holds; then fine grain, brought down to the levels of a file,
/// so that no gradient shows rings. Throws std::runtime_error.
QImage ground(const QString & drawing, int width, int height);
