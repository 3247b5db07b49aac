#pragma once

#include <cstddef>
#include <vector>

/// Of many alike cases, each so manieth is looked at: every one in a release, fewer under the sanitizers,
/// which take ten times as long for each and look for other faults.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TESTED_UNDER_SANITIZERS
#endif
#endif
#ifdef TESTED_UNDER_SANITIZERS
inline constexpr int sweep_stride = 4;
#else
inline constexpr int sweep_stride = 1;
#endif

/// Those of all cases that are looked at.
template <typename Case>
std::vector<Case> swept(const std::vector<Case> & all)
{
    std::vector<Case> some;
    for (std::size_t i = 0; i < all.size(); i += sweep_stride)
        some.push_back(all[i]);
    return some;
}
