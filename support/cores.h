#pragma once

#include <string>

/// The cores that this process may use, at least 1: those it may run on, and no more than its share of their
/// time, rounded up. Found out once.
int usable_cores();

/// Where the system tells a process its share of the cores' time.
struct quota_files {
    std::string groups = "/proc/self/cgroup";  ///< the groups of control that the process is in
    std::string tree = "/sys/fs/cgroup";       ///< where their files lie
};

/// The cores whose time a process may use up, 0 where nothing limits it. Both kinds of the groups' files are
/// read; of a group and those it lies in the least counts.
double cores_of_quota(const quota_files & files);
