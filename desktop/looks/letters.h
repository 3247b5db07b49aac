#pragma once

/// The height of the letters of all windows, in pixels.

/// The letters that windows are drawn with where the system asks for smaller ones, and those that every
/// window has room for as it is drawn. Larger ones make windows grow.
constexpr int smallest_letters = 12, roomy_letters = 16;

/// What the system asks for, as far as a screen of that height has room for the main window.
int letters_for(int wanted, int screen_height);

/// For all windows, with their menus, boxes and tips, from now on.
void set_letters(int pixels);

/// Those that windows have now.
int letters();
