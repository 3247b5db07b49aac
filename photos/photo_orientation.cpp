#include "photos/photo_orientation.h"

std::optional<orientation> counted_orientation(std::optional<picture_size> size)
{
    if (!size)
        return std::nullopt;
    return size->height > size->width ? orientation::portrait : orientation::landscape;
}

void add_photo(orientation_counts & counts, std::optional<orientation> shape)
{
    if (shape == orientation::portrait) {
        ++counts.portrait;
        counts.list += "p:";
    } else if (shape == orientation::landscape) {
        ++counts.landscape;
        counts.list += "l:";
    }
}
