#include "support/workers.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <set>
#include <sys/resource.h>
#include <thread>

namespace {

// Steps that wait until the test lets them go.
struct gate {
    std::promise<void> opening;
    std::shared_future<void> opened{opening.get_future()};
    void open() { opening.set_value(); }
    auto step() const
    {
        return [opened = opened] { opened.wait(); };
    }
};

}  // namespace

TEST(worker_pool, gives_results_and_errors)
{
    worker_pool workers(2);
    EXPECT_EQ(workers.begin([] { return 7; }).get(), 7);
    EXPECT_THROW(workers.begin([]() -> int { throw std::runtime_error("no"); }).get(), std::runtime_error);
    EXPECT_EQ(workers.begin_at_once([] { return 8; }).get(), 8);
}

TEST(worker_pool, has_as_many_threads_as_it_was_told_and_none_is_the_caller_s)
{
    worker_pool workers(3);
    std::atomic<int> waiting = 0;
    std::vector<std::future<std::thread::id>> threads;
    for (int i = 0; i < 3; ++i)
        threads.push_back(workers.begin([&waiting] {
            ++waiting;
            while (waiting < 3)
                std::this_thread::yield();
            return std::this_thread::get_id();
        }));
    std::set<std::thread::id> seen{std::this_thread::get_id()};
    for (auto & thread : threads)
        seen.insert(thread.get());
    EXPECT_EQ(seen.size(), 4U);
}

TEST(worker_pool, steps_behind_the_session_where_it_is_told_to)
{
    const auto priority_here = [] { return ::getpriority(PRIO_PROCESS, 0); };
    const int own = priority_here();
    worker_pool beside(1), behind(1);
    behind.give_way();
    EXPECT_EQ(beside.begin(priority_here).get(), own);
    for (int step = 0; step < 3; ++step)
        EXPECT_EQ(behind.begin(priority_here).get(), std::min(own + 5, 19));
    EXPECT_EQ(behind.begin_at_once(priority_here).get(), own) << "the session waits for it";
}

TEST(worker_pool, takes_no_more_than_fit_its_queue)
{
    gate hold;
    worker_pool workers(2);
    int begun = 0;
    for (; workers.has_room() && begun < 100; ++begun)
        workers.begin(hold.step());
    EXPECT_EQ(begun, 6);
    hold.open();
}

TEST(worker_pool, does_what_is_waited_for_while_all_workers_are_busy)
{
    gate hold;
    worker_pool workers(1);
    workers.begin(hold.step());
    workers.begin(hold.step());
    EXPECT_EQ(workers.begin_at_once([] { return 3; }).get(), 3);
    hold.open();
}

TEST(worker_pool, without_workers_a_step_is_done_where_it_is_begun)
{
    worker_pool workers(0);
    EXPECT_TRUE(workers.has_room());
    EXPECT_EQ(workers.begin([] { return std::this_thread::get_id(); }).get(), std::this_thread::get_id());
    EXPECT_EQ(workers.begin_at_once([] { return std::this_thread::get_id(); }).get(),
              std::this_thread::get_id());
}

TEST(worker_pool, waits_for_what_has_begun_when_it_goes)
{
    std::atomic<bool> ended = false;
    {
        worker_pool workers(1);
        std::promise<void> begun;
        workers.begin([&] {
            begun.set_value();
            std::this_thread::yield();
            ended = true;
        });
        begun.get_future().wait();
    }
    EXPECT_TRUE(ended);
}

TEST(idle_workers, do_each_part_once_and_lend_a_hand)
{
    worker_pool workers(3);
    const idle_workers idle = workers.idle();
    std::array<std::atomic<int>, 100> done{};
    std::atomic<int> waiting = 0;
    std::mutex guard;
    std::set<std::thread::id> threads;
    idle.share(100, [&](int part) {
        ++done[static_cast<std::size_t>(part)];
        ++waiting;
        while (waiting < 4)  // as long as all four are in it
            std::this_thread::yield();
        const std::scoped_lock alone(guard);
        threads.insert(std::this_thread::get_id());
    });
    EXPECT_TRUE(std::ranges::all_of(done, [](int count) { return count == 1; }));
    EXPECT_EQ(threads.size(), 4U);
    EXPECT_TRUE(threads.contains(std::this_thread::get_id()));
}

TEST(idle_workers, who_finds_them_busy_does_everything_alone)
{
    gate hold;
    worker_pool workers(1);
    workers.begin(hold.step());
    int parts = 0;
    workers.begin_at_once([&, idle = workers.idle()] { idle.share(5, [&](int) { ++parts; }); }).get();
    EXPECT_EQ(parts, 5);
    hold.open();
}

TEST(idle_workers, without_any_all_is_done_by_who_asks)
{
    for (const int count : {0, 1, 7}) {
        std::set<std::thread::id> threads;
        int parts = 0;
        worker_pool(0).idle().share(count, [&](int) {
            ++parts;
            threads.insert(std::this_thread::get_id());
        });
        EXPECT_EQ(parts, count);
        EXPECT_TRUE(count == 0 || threads == std::set{std::this_thread::get_id()});
    }
}

TEST(idle_workers, an_error_comes_when_the_other_parts_are_done)
{
    worker_pool workers(2);
    std::atomic<int> done = 0;
    EXPECT_THROW(workers.idle().share(20,
                                      [&](int part) {
                                          if (part == 3)
                                              throw std::runtime_error("no");
                                          ++done;
                                      }),
                 std::runtime_error);
    EXPECT_EQ(done, 19);
}

TEST(worker_pool, counts_within_its_limits)
{
    worker_pool workers(1000);
    EXPECT_EQ(workers.count(), worker_pool::most);
    workers.set_count(-1);
    EXPECT_EQ(workers.count(), 0);
    workers.set_count(5);
    EXPECT_EQ(workers.count(), 5);
    EXPECT_EQ(worker_pool().count(), std::min(usable_cores(), worker_pool::most));
}
