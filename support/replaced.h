#pragma once

#include <utility>

/// Takes the new value; false when it was held already.
template <typename Value>
bool replaced(Value & held, Value wanted)
{
    if (held == wanted)
        return false;
    held = std::move(wanted);
    return true;
}
