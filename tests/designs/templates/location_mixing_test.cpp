#include "designs/templates/location_mixing.h"

#include "tests/scripted_desktop.h"

#include <gtest/gtest.h>

namespace {

void add_numbered(frmMain & main, int count)
{
    main.design_locations.clear();
    for (int i = 0; i < count; ++i)
        main.design_locations.add({.top = narrow(i + 1)});
}

std::string order(const frmMain & main)
{
    std::string tops;
    for (int i = 0; i < main.design_locations.count; ++i)
        tops += std::to_string(main.design_locations[i].top) + " ";
    return tops;
}

}  // namespace

TEST(mix_locations, chooses_its_step_once_and_keeps_it)
{
    scripted_desktop desk;
    frmMain main{desk, listed({0.5})};
    add_numbered(main, 8);
    mix_locations(main, mixing::as_before);
    EXPECT_EQ(main.mix_step, 3);
    EXPECT_EQ(order(main), "8 3 7 1 6 2 4 5 ");
    mix_locations(main, mixing::forced);
    EXPECT_EQ(main.mix_step, 3);
}

TEST(mix_locations, forced_chooses_anew_while_shuffling_is_ticked)
{
    scripted_desktop desk;
    frmMain main{desk, listed({0.0})};
    add_numbered(main, 8);
    main.mix_step = 3;
    main.chkShuffle.tick(true);
    mix_locations(main, mixing::as_before);
    EXPECT_EQ(main.mix_step, 3);
    mix_locations(main, mixing::forced);
    EXPECT_EQ(main.mix_step, 4);
}

TEST(mix_locations, leaves_fewer_than_eight_and_draws_no_number)
{
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    add_numbered(main, 7);
    mix_locations(main, mixing::forced);
    EXPECT_EQ(order(main), "1 2 3 4 5 6 7 ");
    EXPECT_EQ(main.mix_step, -1);
}

TEST(shuffle_locations, reseeds_and_starts_from_the_drawn_place)
{
    scripted_desktop desk;
    random_source random = listed({0.5});
    int reseeded = 0;
    random.reseed = [&] { ++reseeded; };
    frmMain main{desk, random};
    add_numbered(main, 6);
    shuffle_locations(main, 1);
    EXPECT_EQ(order(main), "3 1 6 4 2 5 ");
    EXPECT_EQ(reseeded, 1);
}

TEST(shuffle_locations, leaves_two_locations_and_draws_no_number)
{
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    add_numbered(main, 2);
    shuffle_locations(main, 1);
    EXPECT_EQ(order(main), "1 2 ");
}
