#pragma once

#include <QImage>

#include <map>

/// What is told of windows by their pixels; these are many millions.

/// How often each colour is there.
std::map<QRgb, int> colors_of(const QImage & pixels);

/// The one that is there most often, the lowest of several; 0 of an empty picture.
QRgb ground_color(const std::map<QRgb, int> & counts);

/// The most pixels one beside the other, in any row, of the line around a group: a cold grey that is brighter
/// than the panel, at a half density less so; what the warm letters of a title mix with their ground is never
/// so cold.
int longest_line(const QImage & pixels);
