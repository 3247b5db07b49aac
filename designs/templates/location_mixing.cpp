#include "designs/templates/location_mixing.h"

void mix_locations(frmMain & main, mixing wanted)
{
    location_table & table = main.design_locations;
    if (table.count < fewest_mixed)
        return;
    if (main.mix_step == -1 || (wanted == mixing::forced && main.chkShuffle.ticked()))
        main.mix_step = narrow(mixing_step(table.count, main.random.next()));
    mix(table, main.mix_step);
}

order_turn shuffle_locations(frmMain & main, int step)
{
    location_table & table = main.design_locations;
    order_turn turn{.step = step};
    if (table.count < fewest_shuffled)
        return turn;
    main.random.reseed();
    turn.first = first_dealt(table.count, main.random.next());
    shuffle(table, main.scratch_locations, turn);
    return turn;
}
