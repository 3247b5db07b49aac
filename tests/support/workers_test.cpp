#include "support/workers.h"

#include <atomic>
#include <gtest/gtest.h>
#include <set>
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
