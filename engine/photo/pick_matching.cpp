#include "engine/photo/pick_matching.h"

#include "engine/layout/matching.h"
#include "engine/photo/look_at_files.h"
#include "engine/photo/photo_steps.h"
#include "photos/left_out.h"

#include <utility>

namespace {

match_request request_for(const frmMain & main, picture_size location)
{
    return {.width = location.width,
            .height = location.height,
            .squares_take_any = main.optMatrix.selected(),
            .evolve = main.chkEvolve.ticked(),
            .last_photo = main.table.last_photo};
}

match_cursors cursors_of(const run_state & run)
{
    return {.next_portrait = run.next_portrait,
            .next_landscape = run.next_landscape,
            .portrait_wraps = run.evolve_portrait_wraps,
            .landscape_wraps = run.evolve_landscape_wraps};
}

void keep_cursors(run_state & run, const match_cursors & cursors)
{
    run.next_portrait = cursors.next_portrait;
    run.next_landscape = cursors.next_landscape;
    run.evolve_portrait_wraps = cursors.portrait_wraps;
    run.evolve_landscape_wraps = cursors.landscape_wraps;
}

std::optional<orientation> told_by_header(frmMain & main, const std::string & path)
{
    const std::optional<picture_size> size = size_of_photo(main, path);
    return size ? std::optional(orientation_of(size->width, size->height)) : std::nullopt;
}

std::optional<orientation> how_it_lies(frmMain & main, int index)
{
    seen_orientation & seen = main.table.photo_orientation.at(static_cast<std::size_t>(index));
    if (is_left_out(main, index))
        seen = {.is_known = true};
    else if (!seen.is_known)
        seen = {.is_known = true, .lies = told_by_header(main, main.table[index])};
    return seen.lies;
}

// What a search has in hand.
struct match_search {
    bool takes_any = false;
    const place_of_photo & place_of;
    run_photo photo{};
};

// How the photo lies; it is loaded only when it will be used.
std::optional<orientation> looked_at(frmMain & main, int index, orientation wish, match_search & search)
{
    const std::optional<orientation> lies = how_it_lies(main, index);
    if (!lies)
        leave_out(main, main.table[index]);
    if (!lies || (lies != wish && !search.takes_any))
        return lies;
    search.photo = load_photo(main, main.table[index], search.place_of);
    if (!search.photo)
        leave_out(main, main.table[index]);
    return how_it_lies(main, index);
}

}  // namespace

matched_photo pick_matching(frmMain & main, picture_size location, const place_of_photo & place_of)
{
    const match_request request = request_for(main, location);
    match_search search{.takes_any = is_near_square(request), .place_of = place_of};
    match_cursors cursors = cursors_of(main.run);
    const std::optional<int> found = find_match(
        request, cursors, [&](int index, orientation wish) { return looked_at(main, index, wish, search); });
    keep_cursors(main.run, cursors);
    if (!found) {
        tell_no_match(main, "No images match the design");
        return {};
    }
    return {.photo = std::move(search.photo), .index = *found};
}

std::vector<int> photos_to_match(frmMain & main, const std::vector<picture_size> & locations)
{
    match_cursors cursors = cursors_of(main.run);
    std::vector<int> found;
    for (const picture_size & location : locations) {
        const std::optional<int> next =
            find_match(request_for(main, location), cursors,
                       [&](int index, orientation) { return how_it_lies(main, index); });
        if (!next)
            break;
        found.push_back(*next);
    }
    return found;
}
