#pragma once

#include "support/random.h"

/// The holes of a quick template: of each run of lines one, drawn at random, is left out.
struct blank_run {
    int length = 0;  ///< lines of a run; 0: no line is ever left out
    int left = -1;   ///< lines of the current run that are still to come
    int blank_at = -1;
    int last = 200;  ///< place of the hole in the run before
};

/// The first run. Draws one number, none when `length` isn't above 0.
blank_run start_blanks(int length, const random_source & random);

/// True when the line that is reached is left out.
bool is_blank(const blank_run & run);

/// Goes on to the next line. At the end of a run draws one number for the next.
void next_line(blank_run & run, const random_source & random);
