#include "engine/mask_shelf.h"

#include <algorithm>
#include <utility>

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
    if (masks.size() == places)
        masks.pop_back();
    masks.push_front({std::move(key), std::move(mask)});
    return masks.front().mask;
}
