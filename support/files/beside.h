#pragma once

#include "support/desktop.h"
#include "support/for_now.h"
#include "support/workers.h"

#include <chrono>
#include <future>

/// How long the session waits for another core before it lets events through. What comes sooner lets none
/// through, and one place of a collage waits several times: together they may not be felt.
inline constexpr std::chrono::milliseconds between_breaths{4};

/// True when the result can be had without waiting.
template <typename Result>
bool is_there(const std::future<Result> & result)
{
    return result.wait_for(std::chrono::seconds::zero()) == std::future_status::ready;
}

/// Lets pending events through until the result is there.
template <typename Result>
void wait_for(desktop & desk, const std::future<Result> & result)
{
    while (result.wait_for(between_breaths) != std::future_status::ready)
        desk.breathe();
}

/// The same, and gives the result or raises its error.
template <typename Result>
Result awaited(desktop & desk, std::future<Result> result)
{
    wait_for(desk, result);
    return result.get();
}

/// Runs `step` on another core, lets pending events through meanwhile, and gives its result or raises its
/// error. The step works on files and pixels of its own and touches nothing of the session; what it refers to
/// stays until it has ended.
template <typename Step>
auto beside(desktop & desk, worker_pool & workers, Step step)
{
    auto result = workers.begin_at_once(std::move(step));
    const afterwards ended([&] {
        if (result.valid())
            result.wait();
    });
    wait_for(desk, result);
    return result.get();
}

/// The same for a step that nothing the user does may come in between: the windows are drawn, and that is
/// all.
template <typename Step>
auto alone_beside(desktop & desk, worker_pool & workers, Step step)
{
    auto result = workers.begin_at_once(std::move(step));
    const afterwards ended([&] {
        if (result.valid())
            result.wait();
    });
    while (result.wait_for(between_breaths) != std::future_status::ready)
        desk.breathe_alone();
    return result.get();
}
