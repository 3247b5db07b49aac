#include "support/workers.h"

#include <algorithm>
#include <asio/post.hpp>
#include <asio/thread_pool.hpp>
#include <atomic>
#include <cassert>
#include <sys/resource.h>

namespace {

constexpr int steps_a_worker = 3;  // one at work, one that follows, one in reserve
constexpr int steps_behind = 5;  // of the system's priorities: a third of a core's time against one in front

// The thread that calls it, once. Where the system refuses, all are as before.
void step_back()
{
    thread_local const int done =
        ::setpriority(PRIO_PROCESS, 0, ::getpriority(PRIO_PROCESS, 0) + steps_behind);
    static_cast<void>(done);
}

}  // namespace

struct worker_pool::threads {
    threads(int count, priority taken) : place(taken), workers(static_cast<std::size_t>(count)) {}

    void post(std::function<void()> task)
    {
        asio::post(workers, [at = place, task = std::move(task)] {
            if (at == priority::behind)
                step_back();
            task();
        });
    }

    priority place;
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
    those.post([&left = those.unfinished, task = std::move(task)]() mutable {
        task();
        task = nullptr;
        --left;
    });
}

worker_pool::threads & worker_pool::started()
{
    if (!running)
        running = std::make_unique<threads>(wanted, place);
    return *running;
}

idle_workers worker_pool::idle()
{
    if (wanted == 0)
        return {};
    return {wanted, [&those = started()](std::function<void()> errand) { those.post(std::move(errand)); }};
}
