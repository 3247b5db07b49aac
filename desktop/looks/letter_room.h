#pragma once

#include <QWidget>

/// Widens what a Designer file gives a size in pixels (lists of numbers, buttons of one sign, lines of text)
/// where the letters are larger than those it was drawn for. Pictures keep their sizes.
void give_letters_room(QWidget & window);
