#include "engine/layout/matching.h"

#include <algorithm>

namespace {

orientation other(orientation wish)
{
    return wish == orientation::portrait ? orientation::landscape : orientation::portrait;
}

int16 & cursor_of(match_cursors & cursors, orientation wish)
{
    return wish == orientation::portrait ? cursors.next_portrait : cursors.next_landscape;
}

int16 & wraps_of(match_cursors & cursors, orientation wish)
{
    return wish == orientation::portrait ? cursors.portrait_wraps : cursors.landscape_wraps;
}

// A walk through the table for one location.
struct walk {
    orientation wish;
    int index;
    bool began_at_start;       // no photo was passed over before the first wrap
    bool whole_round = false;  // the walk since the last wrap began at the first photo
    bool searched_portrait = false, searched_landscape = false;

    bool & searched(orientation asked)
    {
        return asked == orientation::portrait ? searched_portrait : searched_landscape;
    }
};

bool gives_up(const match_request & request, const match_cursors & cursors, const walk & search)
{
    if (search.began_at_start &&
        (!request.evolve || (cursors.portrait_wraps == 0 && cursors.landscape_wraps == 0)))
        return true;
    if (!request.evolve)
        return search.searched_portrait || search.searched_landscape;
    return search.searched_portrait && search.searched_landscape;
}

// Past the last photo: from the first one again, or on to the other orientation.
void come_round(const match_request & request, match_cursors & cursors, walk & search)
{
    int16 & wraps = wraps_of(cursors, search.wish);
    wraps = narrow(wraps + 1);
    search.index = 0;
    if (wraps_of(cursors, other(search.wish)) == 0) {
        search.wish = other(search.wish);
        search.index = cursor_of(cursors, search.wish);
    } else if (request.evolve && search.searched(search.wish)) {
        // Walking the same round again can't find more; what is left is the other orientation.
        search.wish = other(search.wish);
    }
    search.whole_round = search.index == 0;
}

}  // namespace

bool is_near_square(const match_request & request)
{
    return request.squares_take_any &&
           0.98 * std::max(request.width, request.height) < std::min(request.width, request.height);
}

orientation wished(const match_request & request, const match_cursors & cursors)
{
    if (is_near_square(request))
        return cursors.next_portrait < cursors.next_landscape ? orientation::portrait
                                                              : orientation::landscape;
    const orientation wish = request.height > request.width ? orientation::portrait : orientation::landscape;
    const int own_wraps = wish == orientation::portrait ? cursors.portrait_wraps : cursors.landscape_wraps;
    const int other_wraps = wish == orientation::portrait ? cursors.landscape_wraps : cursors.portrait_wraps;
    return request.evolve && own_wraps > 0 && other_wraps == 0 ? other(wish) : wish;
}

orientation orientation_of(int width, int height)
{
    return width > height ? orientation::landscape : orientation::portrait;
}

std::optional<int> find_match(const match_request & request, match_cursors & cursors, const photo_look & look)
{
    const bool takes_any = is_near_square(request);
    walk search{.wish = wished(request, cursors), .index = 0, .began_at_start = false};
    search.index = cursor_of(cursors, search.wish);
    search.began_at_start = search.whole_round = search.index == 0;
    for (;; ++search.index) {
        if (search.index > request.last_photo) {
            if (search.whole_round)
                search.searched(search.wish) = true;
            if (gives_up(request, cursors, search))
                return std::nullopt;
            come_round(request, cursors, search);
        }
        if (search.index > request.last_photo)
            continue;
        const std::optional<orientation> lies = look(search.index, search.wish);
        if (lies == search.wish || (takes_any && lies)) {
            cursor_of(cursors, search.wish) = narrow(search.index + 1);
            return search.index;
        }
    }
}
