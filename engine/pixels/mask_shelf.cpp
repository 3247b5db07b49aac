#include "engine/pixels/mask_shelf.h"

#include <algorithm>
#include <utility>

namespace {

std::size_t bytes_of(const bitmap & mask)
{
    return mask ? static_cast<std::size_t>(mask.width()) * static_cast<std::size_t>(mask.height()) *
                      static_cast<int>(sizeof(pixel))
                : 0;
}

}  // namespace

const bitmap * mask_shelf::find(const mask_key & wanted)
{
    const auto found = std::ranges::find(masks, wanted, &shelved::key);
    if (found == masks.end())
        return nullptr;
    masks.splice(masks.begin(), masks, found);
    return &masks.front().mask;
}

const bitmap & mask_shelf::keep(mask_key key, bitmap mask)
{
    filled += bytes_of(mask);
    while (filled > room && !masks.empty()) {
        filled -= bytes_of(masks.back().mask);
        masks.pop_back();
    }
    masks.push_front({std::move(key), std::move(mask)});
    return masks.front().mask;
}
