#include "quick/block/block_plan.h"

#include "quick/gap.h"
#include "quick/template_text.h"
#include "support/rectangle.h"

#include <algorithm>

namespace {

rectangle rectangle_of(const std::string & line)
{
    const std::vector<std::string> fields = fields_of(line);
    const int top = number_at(fields, 0), left = number_at(fields, 1), height = number_at(fields, 2);
    return {.left = left, .top = top, .width = number_at(fields, 3), .height = height};
}

// Both sides of a rectangle give up the gap, in each direction where there is room.
location inside_gap(const rectangle & place, int gap)
{
    const int down = gap_beside(gap, place.height), across = gap_beside(gap, place.width);
    return {.top = narrow(place.top + down),
            .left = narrow(place.left + across),
            .height = narrow(place.height - 2 * down),
            .width = narrow(place.width - 2 * across)};
}

// Twice as high on every poster: after the turn of a landscape one that is twice as wide.
rectangle doubled(rectangle place)
{
    place.height *= 2;
    return place;
}

struct halves {
    rectangle first, second;
};

// An odd unit is given back to the right half; on a landscape poster it is lost.
halves cut(rectangle place, poster_shape poster)
{
    rectangle second = place;
    if (poster == poster_shape::landscape) {
        place.height = second.height = nearest(place.height / 2.0);
        second.top += place.height;
    } else {
        const int odd = place.width % 2;
        place.width = nearest(place.width / 2.0);
        second.left += place.width;
        second.width = place.width + odd;
    }
    return {.first = place, .second = second};
}

// What the line becomes; it counts among the doubled and the cut ones even when it is left out.
std::vector<rectangle> treated(const rectangle & place, block_request & left)
{
    if (left.doubled > 0) {
        --left.doubled;
        return {doubled(place)};
    }
    if (left.split > 0) {
        --left.split;
        const halves both = cut(place, left.poster);
        return {both.first, both.second};
    }
    return {place};
}

}  // namespace

std::vector<location> block_plan(const std::vector<std::string> & block, const block_request & request,
                                 const random_source & random)
{
    std::vector<location> plan;
    block_request left = request;
    for (const std::string & line : block) {
        if (!line.starts_with('#'))
            for (const rectangle & place : treated(rectangle_of(line), left))
                if (!is_blank(left.blanks))
                    plan.push_back(inside_gap(place, request.gap));
        next_line(left.blanks, random);
    }
    return plan;
}
