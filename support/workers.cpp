#include "support/workers.h"

#include <algorithm>
#include <asio/post.hpp>
#include <asio/thread_pool.hpp>
#include <atomic>
#include <cassert>

namespace {

constexpr int steps_a_worker = 3;  // one at work, one that follows, one in reserve

}  // namespace

struct worker_pool::threads {
    explicit threads(int count) : workers(static_cast<std::size_t>(count)) {}

    std::atomic<int> unfinished = 0;  // outlives the threads, which count it down
    asio::thread_pool workers;
    asio::thread_pool errands{1};
};

worker_pool::worker_pool(int count) : wanted(std::clamp(count, 0, most)) {}

worker_pool::~worker_pool() = default;

void worker_pool::set_count(int count)
{
    running.reset();
    wanted = std::clamp(count, 0, most);
}

bool worker_pool::has_room() const
{
    return !running || running->unfinished < steps_a_worker * wanted;
}

void worker_pool::hand_on(std::function<void()> task, turn when)
{
    if (wanted == 0) {
        task();
        return;
    }
    threads & those = started();
    if (when == turn::at_once) {
        asio::post(those.errands, std::move(task));
        return;
    }
    assert(has_room());
    ++those.unfinished;
    asio::post(those.workers, [&left = those.unfinished, task = std::move(task)]() mutable {
        task();
        task = nullptr;
        --left;
    });
}

worker_pool::threads & worker_pool::started()
{
    if (!running)
        running = std::make_unique<threads>(wanted);
    return *running;
}

idle_workers worker_pool::idle()
{
    if (wanted == 0)
        return {};
    return {wanted, [&those = started().workers](std::function<void()> errand) {
                asio::post(those, std::move(errand));
            }};
}
