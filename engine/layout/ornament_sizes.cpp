#include "engine/layout/ornament_sizes.h"

#include "support/numbers.h"

#include <algorithm>

int frame_size_of(int value, const frame_choice & chosen)
{
    if (chosen.by_location)
        return std::max(value, 0);
    if (!chosen.list_enabled || value < 0)
        return chosen.list_value;
    return value;
}

int shadow_size_of(int value, const shadow_choice & chosen)
{
    if (!chosen.usable)
        return 0;
    return chosen.list_counts && value < 0 ? chosen.list_value : value;
}

int frame_in_preview(int size)
{
    return size < 1 ? 0 : size / 6 + 1;
}

int shadow_in_preview(int size)
{
    if (size < 1)
        return 0;
    const int quarter = nearest(size / 4.0);
    return quarter < 1 ? 3 : quarter;
}

int frame_list_in_preview(int value)
{
    return value < 1 ? 0 : std::max(value / 6, 1);
}

int shadow_list_in_preview(int value)
{
    return std::max(value / 4, 0);
}

int bounded_in_preview(int size)
{
    if (size < 1)
        return 0;
    if (size > 15)
        return nearest(size / 3.0);
    return std::min(size, 8);
}
