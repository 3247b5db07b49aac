#include "designs/templates/location_order.h"

#include <utility>

namespace {

struct step_choice {
    int above;  // locations
    int steps;
};

constexpr step_choice step_choices[] = {{50, 6}, {35, 5}, {24, 4}, {15, 3}};
constexpr int fewest_steps = 2;
constexpr int smallest_step = 3;

int steps_to_choose_from(int count)
{
    for (const step_choice & choice : step_choices)
        if (count > choice.above)
            return choice.steps;
    return fewest_steps;
}

// A step beyond the table would deal it into single cards.
int step_inside(int step, int last)
{
    if (step <= last)
        return step;
    return last > 2 ? last - 1 : 1;
}

void deal(const location_table & table, location_table & scratch, int step)
{
    const int last = table.count - 1;
    int dealt = 0;
    for (int start = last; dealt <= last; --start)
        for (int from = start; from >= 0; from -= step)
            scratch[dealt++] = table[from];
}

}  // namespace

int mixing_step(int count, double drawn)
{
    const int steps = steps_to_choose_from(count);
    return whole(drawn * steps + 1) % steps + smallest_step;
}

void mix(location_table & table, int step)
{
    const int end = table.count;  // one past the last location; the walk never reaches it
    if (end < fewest_mixed)
        return;
    int limit = end;
    int rounds = 1;
    int other = end - step;
    for (int i = 0; i <= end; ++i) {
        std::swap(table[i], table[other]);
        other -= step;
        if (other >= 0)
            continue;
        other = limit - step + rounds;
        ++rounds;
        --limit;
        if (other > limit)
            break;
    }
}

int first_dealt(int count, double drawn)
{
    const int last = count - 1;
    return nearest(drawn * last + 1) % last;
}

void shuffle(location_table & table, location_table & scratch, const order_turn & turn)
{
    if (table.count < fewest_shuffled)
        return;
    deal(table, scratch, step_inside(turn.step + 1, table.count - 1));
    for (int i = 0; i < table.count; ++i)
        table[i] = scratch[(turn.first + i) % table.count];
}
