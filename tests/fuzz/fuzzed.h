#pragma once

#include "support/platform_error.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// What the fuzz targets share.

inline std::string fuzzed_text(const std::uint8_t * bytes, std::size_t count)
{
    return {reinterpret_cast<const char *>(bytes), count};
}

/// A reader may refuse what it reads by a platform_error; anything else is a find.
template <typename Step>
void ignoring_refusals(Step step)
{
    try {
        step();
    } catch (const platform_error &) {
        return;
    }
}
