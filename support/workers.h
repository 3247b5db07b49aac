#pragma once

#include "support/cores.h"
#include "support/idle_workers.h"

#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

/// The threads that work beside the session's own, which alone uses this class. A step gets values and gives
/// a value or an error: it owns nothing of the session and sees nothing of it.
class worker_pool {
public:
    static constexpr int most = 64;  ///< workers

    /// As many as `set_count` takes. No thread is begun before there is work for one.
    explicit worker_pool(int count = usable_cores());
    worker_pool(const worker_pool &) = delete;
    worker_pool & operator=(const worker_pool &) = delete;
    /// What hasn't begun is dropped, what has is waited for.
    ~worker_pool();

    int count() const { return wanted; }
    /// 0 to `most`. Without workers a step is done where it is begun. What is queued is dropped, what has
    /// begun is waited for.
    void set_count(int count);

    /// Workers that begin from now on take a core behind the session's own thread, where there are fewer
    /// cores than threads: a window that waits for them answers all the same.
    void give_way() { place = priority::behind; }

    /// False while as much is queued or at work as may be: three steps a worker, so that what waits takes
    /// little memory.
    bool has_room() const;

    /// Has a worker do the step behind those that were queued before. To be asked for while there is room.
    template <typename Step>
    auto begin(Step step)
    {
        return handed_on(std::move(step), turn::in_order);
    }

    /// The same for a step that the session waits for: a thread of its own does it, whatever is queued.
    template <typename Step>
    auto begin_at_once(Step step)
    {
        return handed_on(std::move(step), turn::at_once);
    }

    /// Those that lend a step a hand behind what is queued. To be asked for by the session's thread, and used
    /// in a step, which the pool outlives.
    idle_workers idle();

private:
    enum class turn { in_order, at_once };
    enum class priority { beside, behind };  // the session's own thread
    struct threads;

    template <typename Step>
    auto handed_on(Step step, turn when)
    {
        using result = std::invoke_result_t<Step>;
        auto task = std::make_shared<std::packaged_task<result()>>(std::move(step));
        std::future<result> given = task->get_future();
        hand_on([task] { (*task)(); }, when);
        return given;
    }
    void hand_on(std::function<void()> task, turn when);
    threads & started();

    int wanted;
    priority place = priority::beside;
    std::unique_ptr<threads> running;
};
