#pragma once

#include <QRect>
#include <QSize>

#include <vector>

/// Where the start picture and the ways to begin below it stand.

/// In pixels of what holds them all.
struct start_places {
    QRect picture;
    std::vector<QRect> ways;
};

/// What is to be placed.
struct start_sizes {
    QRect picture;  ///< where its form puts it, of which `art` rows from the top are more than black
    int art = 0;
    int center = 0;  ///< column of the picture in which its art has its middle
    QSize way;       ///< of each way, with room for the longest caption
    QSize least;     ///< in which a way can still be read
    int count = 0;   ///< of the ways
};

/// As the form has them where `room` has place for that; in a smaller one the art shrinks, and where little
/// would be left of it, it has one of two rows of equal places. Nothing leaves a room of `least_start`.
start_places placed_start(const start_sizes & sizes, QSize room);

/// The smallest room in which all is seen.
QSize least_start(const start_sizes & sizes);
