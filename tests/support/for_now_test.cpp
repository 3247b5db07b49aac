#include "support/for_now.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

TEST(for_now, gives_the_value_until_the_block_is_left)
{
    std::string mode = "usual";
    {
        const for_now other(mode, std::string("other"));
        EXPECT_EQ(mode, "other");
        const for_now inner(mode, std::string("inner"));
        EXPECT_EQ(mode, "inner");
    }
    EXPECT_EQ(mode, "usual");
}

TEST(for_now, puts_back_what_was_and_not_its_opposite)
{
    bool quiet = true;
    {
        const for_now still(quiet, true);
    }
    EXPECT_TRUE(quiet);
}

TEST(for_now, puts_back_after_a_failure)
{
    bool quiet = false;
    try {
        const for_now held(quiet, true);
        throw std::runtime_error("failed");
    } catch (const std::runtime_error &) {
        EXPECT_FALSE(quiet);
    }
}

TEST(afterwards, runs_its_step_once_the_block_is_left)
{
    int runs = 0;
    {
        const afterwards counted([&] { ++runs; });
        EXPECT_EQ(runs, 0);
    }
    EXPECT_EQ(runs, 1);
}

TEST(afterwards, runs_its_step_after_a_failure)
{
    int runs = 0;
    try {
        const afterwards counted([&] { ++runs; });
        throw std::runtime_error("failed");
    } catch (const std::runtime_error &) {
        EXPECT_EQ(runs, 1);
    }
}
