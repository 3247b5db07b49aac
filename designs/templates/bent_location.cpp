#include "designs/templates/bent_location.h"

location turned(const location & place, int edge)
{
    constexpr double degree =
        0.0174;  // in radians, in round figures: keeps a slanted photo's corner in place
    location result = place;
    result.top = nearest16(place.left - product16(place.height, place.rotation) * degree);
    result.left = narrow(edge - (place.top + place.height));
    result.height = place.width;
    result.width = place.height;
    return result;
}

location corner_stretched(const location & place, stretch by)
{
    location result = place;
    result.top = nearest16(place.top * by.upright);
    result.left = nearest16(place.left * by.level);
    return result;
}

location stretched(const location & place, stretch by)
{
    location result = corner_stretched(place, by);
    result.height = nearest16(place.height * by.upright);
    result.width = nearest16(place.width * by.level);
    return result;
}
