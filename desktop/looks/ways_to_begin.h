#pragma once

#include <QWidget>

/// The ways to begin a collage as pictures below the start picture, each doing what its entry of the menu bar
/// does. They come and go with the start picture.
void add_ways_to_begin(QWidget & main_window);
