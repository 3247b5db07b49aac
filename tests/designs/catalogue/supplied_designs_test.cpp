#include "designs/catalogue/supplied_designs.h"

#include <gtest/gtest.h>

namespace {

using text = text_lines;

const text two{"[Design001]", "Name=One", "", "[Design002]", "Name=Two", ""};
const text own{"[Design600]", "Name=Mine", "System=No"};

text joined_lines(text first, const text & second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

TEST(supplied_designs, nothing_changes_while_the_same_designs_are_supplied)
{
    const text catalogue = joined_lines(two, own);
    EXPECT_EQ(with_supplied(catalogue, two, two), catalogue);
}

TEST(supplied_designs, a_new_one_comes_in_by_its_number)
{
    const text now{"[Design001]", "Name=One", "", "[Design002]", "Name=Two", "", "[Design003]", "Name=Three"};
    EXPECT_EQ(with_supplied(joined_lines(two, own), two, now),
              joined_lines(joined_lines(two, {"[Design003]", "Name=Three", ""}), own));
    EXPECT_EQ(with_supplied({"[Design001]", "Name=One"}, {"[Design001]", "Name=One"}, two),
              (text{"[Design001]", "Name=One", "", "[Design002]", "Name=Two", ""}));
}

TEST(supplied_designs, one_that_was_left_as_it_was_becomes_what_it_is_now)
{
    const text now{"[Design001]", "Name=One", "Flip=No", "", "[Design002]", "Name=Two", ""};
    EXPECT_EQ(with_supplied(joined_lines(two, own), two, now), joined_lines(now, own));
}

TEST(supplied_designs, one_that_the_user_changed_stays)
{
    const text changed{"[Design001]", "Name=Uno", "", "[Design002]", "Name=Two", ""};
    const text now{"[Design001]", "Name=One", "Flip=No", "", "[Design002]", "Name=Two", ""};
    EXPECT_EQ(with_supplied(changed, two, now), changed);
    EXPECT_EQ(with_supplied(changed, two, {"[Design002]", "Name=Two"}), changed);
}

TEST(supplied_designs, one_that_the_user_deleted_stays_away)
{
    EXPECT_EQ(with_supplied(own, two, two), own);
    EXPECT_EQ(with_supplied(own, two, {"[Design001]", "Name=One", "Flip=No"}), own);
}

TEST(supplied_designs, one_that_is_supplied_no_more_goes)
{
    EXPECT_EQ(with_supplied(joined_lines(two, own), two, {"[Design002]", "Name=Two", ""}),
              joined_lines({"[Design002]", "Name=Two", ""}, own));
}

TEST(supplied_designs, a_new_one_whose_number_or_name_is_taken_stays_out)
{
    const text taken{"[Design001]", "Name=One", "", "[Design003]", "Name=Of a package", "",
                     "[Design600]", "Name=Four"};
    const text now{"[Design001]", "Name=One", "", "[Design003]", "Name=Three", "",
                   "[Design004]", "Name=Four"};
    EXPECT_EQ(with_supplied(taken, {"[Design001]", "Name=One"}, now), taken);
}

TEST(supplied_designs, without_what_was_supplied_last_only_what_is_new_comes_in)
{
    const text catalogue{"[Design001]", "Name=One of old", "", "[Design600]", "Name=Mine"};
    EXPECT_EQ(with_supplied(catalogue, {}, two), (text{"[Design001]", "Name=One of old", "", "[Design002]",
                                                       "Name=Two", "", "[Design600]", "Name=Mine"}));
}

TEST(supplied_designs, what_stands_in_front_of_the_first_section_stays)
{
    const text catalogue{"; mine", "[Design001]", "Name=One"};
    EXPECT_EQ(with_supplied(catalogue, two, two), catalogue);
}

TEST(supplied_designs, a_supply_without_designs_takes_nothing_away)
{
    EXPECT_EQ(with_supplied(two, two, {}), two);
    EXPECT_EQ(with_supplied(two, two, {"no catalogue"}), two);
}
