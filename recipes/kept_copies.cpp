#include "recipes/kept_copies.h"

#include "intake/look.h"
#include "intake/prepared_shelf.h"
#include "photos/prepared_photos.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

using copies_by_original = std::map<std::string, intake_photo>;

photo_identity identity_in(const recipe_original & original)
{
    return {.path = original.path, .stamp = {.changed = original.changed, .bytes = original.bytes}};
}

// A recipe that says nothing of it may name a copy as well.
void note_original(recipe_photo & photo, const std::string & data_folder)
{
    if (!photo.original)
        photo.original = original_of_copy(data_folder, photo.path);
}

// A copy that is whole stays, one of another data folder as well.
bool is_there(recipe_photo & photo, prepared_shelf * shelf)
{
    const auto copy = shelf != nullptr ? shelf->found(identity_in(*photo.original)) : std::nullopt;
    if (copy)
        photo.path = *copy;
    return copy || file_exists(photo.path);
}

prepared_shelf * shelf_of(frmMain & main)
{
    prepared_shelf * shelf = nullptr;
    tried([&] { shelf = &copies_of_session(main); });
    return shelf;
}

bool has_copies(const std::vector<recipe_photo> & photos)
{
    return std::ranges::any_of(photos, [](const recipe_photo & photo) { return photo.original.has_value(); });
}

// The originals of those that are gone, each once. They may lie in a folder that is slow to answer.
std::vector<intake_photo> originals_needed(frmMain & main, std::vector<recipe_photo> & photos)
{
    return alone_beside(main.desk, main.workers, [&photos, shelf = shelf_of(main)] {
        copies_by_original seen;
        for (recipe_photo & photo : photos)
            if (photo.original && !is_there(photo, shelf) && file_exists(photo.original->path))
                seen.try_emplace(photo.original->path, looked_at(photo.original->path));
        std::vector<intake_photo> needed;
        for (auto & [path, original] : seen)
            needed.push_back(std::move(original));
        return needed;
    });
}

void take_copies(copies_brought & brought, const std::vector<intake_photo> & prepared)
{
    copies_by_original made;
    for (const intake_photo & each : prepared) {
        made.emplace(each.path, each);
        if (each.ready.empty())
            brought.refused.emplace(each.path, each.why);
    }
    for (recipe_photo & photo : brought.photos) {
        const auto found = photo.original ? made.find(photo.original->path) : made.end();
        if (found != made.end() && !found->second.ready.empty() && !file_exists(photo.path))
            photo.path = found->second.ready;
    }
}

}  // namespace

std::optional<recipe_original> original_of_copy(const std::string & data_folder, const std::string & photo)
{
    const std::optional<photo_identity> origin = origin_of_copy(data_folder, photo);
    if (!origin)
        return std::nullopt;
    return recipe_original{
        .path = origin->path, .bytes = origin->stamp.bytes, .changed = origin->stamp.changed};
}

copies_brought bring_copies(frmMain & main, std::vector<recipe_photo> photos)
{
    for (recipe_photo & photo : photos)
        note_original(photo, main.data_folder);
    copies_brought brought{.photos = std::move(photos)};
    if (!has_copies(brought.photos))
        return brought;
    std::vector<intake_photo> needed = originals_needed(main, brought.photos);
    if (needed.empty())
        return brought;
    const auto prepared = copies_made_again(main, std::move(needed));
    if (prepared)
        take_copies(brought, *prepared);
    brought.is_stopped = !prepared;
    return brought;
}
