#include "recipes/found_photos.h"

#include "support/files/beside.h"
#include "support/files/paths.h"

#include <algorithm>

namespace {

bool has_changed(const recipe_photo & photo, const file_stamp & now)
{
    return now.bytes != photo.bytes || (!photo.moves_along && now.changed != photo.changed);
}

found_photos looked_at(const std::vector<recipe_photo> & photos)
{
    found_photos found;
    for (const recipe_photo & photo : photos) {
        const auto stamp = file_exists(photo.path) ? stamp_of(photo.path) : std::nullopt;
        if (!stamp) {
            found.gone.push_back(photo.path);
            continue;
        }
        found.there.push_back(photo);
        if (has_changed(photo, *stamp))
            found.changed.push_back(photo.path);
    }
    // The same photo may be in use more than once.
    for (auto * paths : {&found.gone, &found.changed}) {
        std::ranges::sort(*paths);
        paths->erase(std::unique(paths->begin(), paths->end()), paths->end());
    }
    return found;
}

std::vector<recipe_photo *> gone_among(std::vector<recipe_photo> & photos)
{
    std::vector<recipe_photo *> gone;
    for (recipe_photo & photo : photos)
        if (!file_exists(photo.path))
            gone.push_back(&photo);
    return gone;
}

// The deepest folder in which all of them lay, with a separator at its end.
std::string shared_folder(const std::vector<recipe_photo *> & photos)
{
    std::string shared = folder_of(photos.front()->path) + path_separator;
    for (const recipe_photo * photo : photos)
        while (!shared.empty() && !photo->path.starts_with(shared)) {
            shared.pop_back();
            shared.resize(shared.empty() ? 0 : last_separator(shared) + 1);
        }
    return shared;
}

void move_to(recipe_photo & photo, const std::string & folder, const std::string & shared)
{
    for (const std::string & path :
         {joined(folder, photo.path.substr(shared.size())), joined(folder, name_of(photo.path))})
        if (file_exists(path)) {
            photo.path = path;
            photo.moves_along = true;
            return;
        }
}

std::vector<recipe_photo> with_moved(std::vector<recipe_photo> photos, const std::string & folder)
{
    const std::vector<recipe_photo *> gone = gone_among(photos);
    if (gone.empty())
        return photos;
    const std::string shared = shared_folder(gone);
    for (recipe_photo * photo : gone)
        move_to(*photo, folder, shared);
    return photos;
}

}  // namespace

found_photos look_for(frmMain & main, const std::vector<recipe_photo> & photos)
{
    return alone_beside(main.desk, main.workers, [&] { return looked_at(photos); });
}

std::vector<recipe_photo> looked_for_in(frmMain & main, const std::string & folder,
                                        std::vector<recipe_photo> photos)
{
    return alone_beside(main.desk, main.workers, [&] { return with_moved(std::move(photos), folder); });
}
