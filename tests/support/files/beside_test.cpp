#include "support/files/beside.h"

#include "support/platform_error.h"
#include "tests/scripted_desktop.h"

#include <atomic>
#include <gtest/gtest.h>

TEST(beside, lets_events_through_until_the_step_is_done)
{
    scripted_desktop desk;
    worker_pool workers;
    std::atomic<bool> may_end = false;
    desk.on_breath = [&] { may_end = desk.breaths >= 3; };
    const int result = beside(desk, workers, [&] {
        while (!may_end)
            std::this_thread::yield();
        return 7;
    });
    EXPECT_EQ(result, 7);
    EXPECT_GE(desk.breaths, 3);
}

TEST(beside, the_error_of_the_step_is_the_caller_s)
{
    scripted_desktop desk;
    worker_pool workers;
    EXPECT_THROW(
        beside(desk, workers, []() -> int { throw platform_error(error_number::overflow, "Overflow"); }),
        platform_error);
}
