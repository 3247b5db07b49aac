#pragma once

/// What becomes of a program that finds no display. Left to itself the toolkit aborts, which leaves a core
/// file and nothing that says what to do.

/// The status of a program that found no display.
inline constexpr int no_display_status = 3;

/// From here on a toolkit that can't start ends the program with `no_display_status` and one line on standard
/// error that says why. To be called before the application is made.
void expect_display();

/// The application is there: from here on the toolkit's messages go where it sends them.
void display_found();
