#pragma once

#include "support/files/paths.h"

#include <optional>
#include <string>
#include <type_traits>

/// What `look` makes of a file, by its stamp, where nobody changes the file meanwhile; where somebody does it
/// looks again, three times in all. Nothing for a file that is gone or changes all the time.
template <typename Look>
std::optional<std::invoke_result_t<Look, const file_stamp &>> steady_look(const std::string & path, Look look)
{
    constexpr int most_looks = 3;
    for (int looks = 0; looks < most_looks; ++looks) {
        const std::optional<file_stamp> stamp = stamp_of(path);
        if (!stamp)
            return std::nullopt;
        auto found = look(*stamp);
        if (stamp_of(path) == stamp)
            return found;
    }
    return std::nullopt;
}
