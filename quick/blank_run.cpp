#include "quick/blank_run.h"

#include "support/numbers.h"

blank_run start_blanks(int length, const random_source & random)
{
    blank_run run;
    if (length > 0) {
        run.length = run.left = length;
        run.blank_at = whole(random.next() * length);
    }
    return run;
}

bool is_blank(const blank_run & run)
{
    return run.blank_at == 0;
}

void next_line(blank_run & run, const random_source & random)
{
    if (run.length == 0)
        return;
    --run.blank_at;
    if (--run.left != 0)
        return;
    int drawn = whole(random.next() * run.length);
    // Two holes side by side would look like one: not the last line of a run and the first of the next. The
    // first run of all isn't looked at.
    if (run.last == run.length - 1 && drawn == 0)
        drawn = 1;
    run = {.length = run.length, .left = run.length, .blank_at = drawn, .last = drawn};
}
