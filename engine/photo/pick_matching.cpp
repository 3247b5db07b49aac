#include "engine/photo/pick_matching.h"

#include "engine/layout/matching.h"
#include "engine/photo/photo_steps.h"
#include "photos/left_out.h"

#include <utility>

namespace {

match_request request_for(const frmMain & main, int width, int height)
{
    return {.width = width,
            .height = height,
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

std::optional<orientation> told_by_header(const std::string & path)
{
    const std::optional<picture_size> size = usable_jpeg_size(path);
    return size ? std::optional(orientation_of(size->width, size->height)) : std::nullopt;
}

std::optional<orientation> how_it_lies(frmMain & main, int index)
{
    seen_orientation & seen = main.table.photo_orientation.at(static_cast<std::size_t>(index));
    if (is_left_out(main, index))
        seen = {.is_known = true};
    else if (!seen.is_known)
        seen = {.is_known = true, .lies = told_by_header(main.table[index])};
    return seen.lies;
}

// How the photo lies; it is loaded into `image` only when it will be used.
std::optional<orientation> looked_at(frmMain & main, int index, bool is_wanted_anyhow, orientation wish,
                                     bitmap & image)
{
    const std::optional<orientation> lies = how_it_lies(main, index);
    if (!lies)
        leave_out(main, main.table[index]);
    if (!lies || (lies != wish && !is_wanted_anyhow))
        return lies;
    image = load_photo(main, main.table[index]);
    if (!image)
        leave_out(main, main.table[index]);
    return how_it_lies(main, index);
}

}  // namespace

matched_photo pick_matching(frmMain & main, int width, int height)
{
    const match_request request = request_for(main, width, height);
    const bool takes_any = is_near_square(request);
    match_cursors cursors = cursors_of(main.run);
    bitmap image;
    const std::optional<int> found = find_match(request, cursors, [&](int index, orientation wish) {
        return looked_at(main, index, takes_any, wish, image);
    });
    keep_cursors(main.run, cursors);
    if (!found) {
        main.desk.message("No images match the design");
        return {};
    }
    return {.image = std::move(image), .index = *found};
}

std::optional<int> photo_to_match(frmMain & main, int width, int height)
{
    match_cursors cursors = cursors_of(main.run);
    return find_match(request_for(main, width, height), cursors,
                      [&](int index, orientation) { return how_it_lies(main, index); });
}
