#include "engine/photo/canvas_steps.h"

#include "tests/pictures.h"
#include "tests/scripted_desktop.h"

#include <atomic>
#include <gtest/gtest.h>
#include <new>
#include <thread>

namespace {

constexpr picture_size small{.width = 400, .height = 400}, large{.width = 900, .height = 600};
constexpr rgb_triple ground{1, 2, 3}, photo_ink{4, 5, 6};

struct canvas_steps_test : testing::Test {
    canvas_steps_test() { main.run.canvas = plain(large.width, large.height, ground); }

    std::thread::id thread_of(picture_size size)
    {
        std::thread::id found;
        draw_on_canvas(main, size, [&](bitmap &) { found = std::this_thread::get_id(); });
        return found;
    }

    scripted_desktop desk;
    frmMain main{desk, listed({})};
};

}  // namespace

TEST_F(canvas_steps_test, what_is_small_is_drawn_at_once_and_what_is_large_on_another_thread)
{
    EXPECT_EQ(thread_of(small), std::this_thread::get_id());
    EXPECT_NE(thread_of(large), std::this_thread::get_id());
}

TEST_F(canvas_steps_test, the_window_lets_events_through_while_much_is_drawn)
{
    std::atomic<bool> seen = false;
    desk.on_breath = [&] { seen = true; };
    draw_on_canvas(main, large, [&](bitmap & canvas) {
        while (!seen)
            std::this_thread::yield();
        fill(canvas, photo_ink);
    });
    EXPECT_TRUE(same(main.run.canvas, plain(large.width, large.height, photo_ink)));
}

TEST_F(canvas_steps_test, work_on_all_of_a_large_canvas_may_put_another_in_its_place)
{
    std::thread::id found;
    work_on_canvas(main, [&](bitmap & canvas) {
        found = std::this_thread::get_id();
        canvas = copied(canvas, 0, 0, 30, 20);
    });
    EXPECT_NE(found, std::this_thread::get_id());
    EXPECT_TRUE(same(main.run.canvas, plain(30, 20, ground)));
}

TEST_F(canvas_steps_test, an_error_of_the_step_is_raised_by_who_asked)
{
    for (const picture_size size : {small, large})
        EXPECT_THROW(draw_on_canvas(main, size, [](bitmap &) { throw std::bad_alloc(); }), std::bad_alloc);
}
