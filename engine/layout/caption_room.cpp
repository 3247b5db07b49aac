#include "engine/layout/caption_room.h"

namespace {

// A turned photo reaches beyond its place; the more it is turned, the less of its side counts, in percent.
double turn_allowance(int rotation)
{
    return 100 - product16(rotation, rotation) / 67.0;
}

location_bend upright_room(const room_setting & setting, run_size size)
{
    const bool full = size == run_size::full;
    double top = full ? 400 : 55;
    if (setting.at_bottom)
        top = full ? 50 : 7;
    else if (setting.square)
        top = full ? 250 : 35;
    return {.top{.factor = 0.85, .offset = top},
            .left{.factor = 0.95, .offset = full ? 50.0 : 7.0},
            .height{.factor = setting.block ? 0.85 : 0.92},
            .width{.factor = 0.95}};
}

location_bend turned_room(const room_setting & setting, run_size size)
{
    const bool full = size == run_size::full;
    double left = full ? 350 : 55;
    if (setting.at_bottom)
        left = full ? 50 : 10;
    return {.top{.factor = 0.92, .offset = full ? 120.0 : 25.0},
            .left{.factor = 0.8, .offset = left},
            .height{.factor = 0.92},
            .width{.factor = setting.block ? 0.8 : 0.88}};
}

}  // namespace

location mirrored(const location & place, int extent)
{
    location result = place;
    const int far = nearest16(place.left + place.width * turn_allowance(place.rotation) / 100);
    result.left = narrow(extent - far);
    result.top = nearest16(place.top + place.rotation * 1.6 * place.width / 100);
    result.rotation = narrow(-place.rotation);
    return result;
}

location flipped(const location & place, int extent)
{
    location result = place;
    const int far = nearest16(place.top + place.height * turn_allowance(place.rotation) / 100);
    result.top = narrow(extent - far);
    result.left = nearest16(place.left - place.rotation * 1.75 * place.height / 100);
    result.rotation = narrow(-place.rotation);
    return result;
}

location_bend caption_room_bend(const room_setting & setting, run_size size)
{
    return setting.turned_afterwards ? turned_room(setting, size) : upright_room(setting, size);
}
