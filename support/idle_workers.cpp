#include "support/idle_workers.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <utility>

namespace {

// A worker may come when all is done and the asker has gone: it then finds no part left and touches no more
// than this.
class shared_parts {
public:
    shared_parts(int parts, const std::function<void(int)> & to_do) : count(parts), part(to_do) {}

    void take() noexcept
    {
        for (int mine = next++; mine < count; mine = next++) {
            try {
                part(mine);
            } catch (...) {
                const std::scoped_lock alone(guard);
                error = std::current_exception();
            }
            if (++done == count)
                done.notify_all();
        }
    }

    void wait() const
    {
        for (int seen = done; seen < count; seen = done)
            done.wait(seen);
        if (error)
            std::rethrow_exception(error);
    }

private:
    int count;
    const std::function<void(int)> & part;
    std::atomic<int> next = 0, done = 0;
    std::mutex guard;
    std::exception_ptr error;
};

}  // namespace

idle_workers::idle_workers(int count, std::function<void(std::function<void()>)> have_done)
    : workers(count), hand_on(std::move(have_done))
{}

void idle_workers::share(int count, const std::function<void(int part)> & part) const
{
    const auto parts = std::make_shared<shared_parts>(count, part);
    for (int i = 1; i < std::min(count, workers + 1); ++i)
        hand_on([parts] { parts->take(); });
    parts->take();
    parts->wait();
}
