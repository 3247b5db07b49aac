#pragma once

#include "support/desktop.h"

#include <chrono>
#include <future>

/// How long a window may stand still, at most.
inline constexpr std::chrono::milliseconds longest_standstill{20};

/// Runs `step` on another core, lets pending events through meanwhile, and gives its result or raises its
/// error. The step works on files and pixels of its own and touches nothing of the session.
template <typename Step>
auto beside(desktop & desk, Step step)
{
    auto result = std::async(std::launch::async, std::move(step));
    while (result.wait_for(longest_standstill) != std::future_status::ready)
        desk.breathe();
    return result.get();
}
