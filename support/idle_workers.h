#pragma once

#include <functional>

/// The workers as somebody sees them who has much to do that falls into parts: who of them has nothing else
/// to do lends a hand. Can be copied and used on any thread, as long as the pool that it comes from is there.
class idle_workers {
public:
    /// Nobody: who asks does all of it alone.
    idle_workers() = default;
    /// `have_done` has a worker do the errand when it is free, and returns at once.
    idle_workers(int count, std::function<void(std::function<void()> errand)> have_done);

    /// Does each part from 0 to `count`, the latter exclusive, once, in no order, on this thread and on
    /// workers that are free; comes back when all are done. No part may touch what another one changes. An
    /// error of one is raised here when the others are done.
    void share(int count, const std::function<void(int part)> & part) const;

private:
    int workers = 0;
    std::function<void(std::function<void()>)> hand_on;
};
