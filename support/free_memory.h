#pragma once

#include <cstdint>

/// Bytes that this process may still take: what the machine has free, within the process's own limit and that
/// of its group. What can't be told is no limit.
std::uint64_t free_memory();
