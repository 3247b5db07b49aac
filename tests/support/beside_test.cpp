#include "support/beside.h"

#include "support/platform_error.h"
#include "tests/scripted_desktop.h"

#include <atomic>
#include <gtest/gtest.h>

TEST(beside, lets_events_through_until_the_step_is_done)
{
    scripted_desktop desk;
    std::atomic<bool> may_end = false;
    desk.on_pump(3, [&] { may_end = true; });
    const int result = beside(desk, [&] {
        while (!may_end)
            std::this_thread::yield();
        return 7;
    });
    EXPECT_EQ(result, 7);
    EXPECT_GE(desk.pumps, 3);
}

TEST(beside, the_error_of_the_step_is_the_caller_s)
{
    scripted_desktop desk;
    EXPECT_THROW(beside(desk, []() -> int { throw platform_error(error_number::overflow, "Overflow"); }),
                 platform_error);
}
