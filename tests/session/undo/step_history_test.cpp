#include "session/undo/step_history.h"

#include <gtest/gtest.h>

namespace {

step_history<int> after_steps(int last)
{
    step_history<int> steps;
    steps.begin(0);
    for (int state = 1; state <= last; ++state)
        steps.add(state);
    return steps;
}

int steps_back(step_history<int> & steps)
{
    int count = 0;
    for (; steps.before() != nullptr; ++count)
        steps.step_back();
    return count;
}

}  // namespace

TEST(step_history, goes_back_and_forth)
{
    step_history<int> steps = after_steps(2);
    EXPECT_EQ(*steps.before(), 1);
    EXPECT_EQ(steps.after(), nullptr);
    steps.step_back();
    EXPECT_EQ(steps.present(), 1);
    EXPECT_EQ(*steps.before(), 0);
    EXPECT_EQ(*steps.after(), 2);
    steps.step_forward();
    EXPECT_EQ(steps.present(), 2);
}

TEST(step_history, forgets_the_oldest_of_more_than_a_hundred_steps)
{
    step_history<int> hundred = after_steps(100), more = after_steps(101);
    EXPECT_EQ(steps_back(hundred), 100);
    EXPECT_EQ(hundred.present(), 0);
    EXPECT_EQ(steps_back(more), 100);
    EXPECT_EQ(more.present(), 1);
}

TEST(step_history, drops_what_was_undone_at_a_new_step)
{
    step_history<int> steps = after_steps(3);
    steps.step_back();
    steps.step_back();
    EXPECT_TRUE(steps.add(7));
    EXPECT_EQ(steps.after(), nullptr);
    EXPECT_EQ(*steps.before(), 1);
}

TEST(step_history, counts_only_what_leads_somewhere)
{
    step_history<int> steps = after_steps(1);
    EXPECT_FALSE(steps.add(1));
    EXPECT_EQ(*steps.before(), 0);
}

TEST(step_history, lengthens_a_step_and_drops_it_where_it_leads_back)
{
    step_history<int> steps = after_steps(1);
    EXPECT_TRUE(steps.lengthen(2));
    EXPECT_EQ(*steps.before(), 0);
    EXPECT_FALSE(steps.lengthen(0));
    EXPECT_EQ(steps.before(), nullptr);
}

TEST(step_history, amends_without_a_step)
{
    step_history<int> steps = after_steps(2);
    steps.step_back();
    steps.amend(5);
    EXPECT_EQ(steps.present(), 5);
    EXPECT_EQ(*steps.after(), 2);
    EXPECT_EQ(*steps.before(), 0);
}

TEST(step_history, begins_anew)
{
    step_history<int> steps = after_steps(2);
    steps.begin(9);
    EXPECT_EQ(steps.before(), nullptr);
    steps.clear();
    EXPECT_FALSE(steps.begun());
}
