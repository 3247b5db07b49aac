#pragma once

#include "designs/templates/location.h"

/// A location of which nothing but its measures is said.
inline location measures(int16 top, int16 left, int16 height, int16 width)
{
    return {.top = top, .left = left, .height = height, .width = width};
}
