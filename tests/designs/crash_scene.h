#pragma once

#include "tests/designs/memory_place.h"
#include "tests/designs/package_session.h"

#include <functional>

/// How a child process fares at one of its steps on the disk.
enum class mishap {
    killed,         ///< it ends in front of the step
    power_cut,      ///< likewise, and what wasn't flushed yet is lost by half
    full_disk,      ///< from the step on nothing can be made or written
    no_permission,  ///< from the step on nothing can be changed at all
};

/// How a child process ended.
inline constexpr int went_through = 0, broken_off = 99, stumbled = 98;

/// Runs `act` in a child process that fares so in front of its step of that number.
int ended_at(int step, mishap fate, const std::function<void()> & act);

/// A data folder of which every state is known, and an operation that is broken off at each of its steps in
/// turn. A start follows; then every file has to be as it was before or as it is after a whole run.
class crash_scene {
public:
    crash_scene();

    /// Breaks it off at every step; gives how many there were. It runs in a child process.
    int break_off(const std::string & name, mishap fate, const std::function<void(package_session &)> & act);

private:
    void lay_out();
    int run_child(int step, mishap fate, const std::function<void(package_session &)> & act);
    void expect_whole(const folder_image & after);

    memory_place in_memory;
    package_session session;
    folder_image before;
};
