#include "recipes/found_photos.h"

#include "recipes/kept_copies.h"
#include "support/files/beside.h"
#include "support/files/paths.h"

#include <algorithm>

namespace {

// A photo or an original.
template <typename File>
bool is_as_then(const File & file)
{
    const auto now = stamp_of(file.path);
    return now && now->bytes == file.bytes && (file.moves_along || now->changed == file.changed);
}

// What was made anew from the same original is the same picture.
bool has_changed(const recipe_photo & photo)
{
    return !is_as_then(photo) && !(photo.original && is_as_then(*photo.original));
}

found_photos looked_at(const copies_brought & brought)
{
    found_photos found{.is_stopped = brought.is_stopped};
    for (const recipe_photo & photo : brought.photos)
        if (file_exists(photo.path)) {
            found.there.push_back(photo);
            if (has_changed(photo))
                found.changed.push_back(own_path(photo));
        } else if (!brought.refused.contains(own_path(photo))) {
            found.gone.push_back(own_path(photo));
        }
    for (const auto & [path, why] : brought.refused)
        found.refused.push_back({.path = path, .why = why});
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
        if (!file_exists(photo.path) && !file_exists(own_path(photo)))
            gone.push_back(&photo);
    return gone;
}

// The deepest folder in which all of them lay, with a separator at its end.
std::string shared_folder(const std::vector<recipe_photo *> & photos)
{
    std::string shared = folder_of(own_path(*photos.front())) + path_separator;
    for (const recipe_photo * photo : photos)
        while (!shared.empty() && !own_path(*photo).starts_with(shared)) {
            shared.pop_back();
            shared.resize(shared.empty() ? 0 : last_separator(shared) + 1);
        }
    return shared;
}

template <typename File>
void move_to(File & file, const std::string & folder, const std::string & shared)
{
    for (const std::string & path :
         {joined(folder, file.path.substr(shared.size())), joined(folder, name_of(file.path))})
        if (file_exists(path)) {
            file.path = path;
            file.moves_along = true;
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
        if (photo->original)
            move_to(*photo->original, folder, shared);
        else
            move_to(*photo, folder, shared);
    return photos;
}

}  // namespace

found_photos look_for(frmMain & main, const std::vector<recipe_photo> & photos)
{
    const copies_brought brought = bring_copies(main, photos);
    return alone_beside(main.desk, main.workers, [&] { return looked_at(brought); });
}

std::vector<recipe_photo> looked_for_in(frmMain & main, const std::string & folder,
                                        std::vector<recipe_photo> photos)
{
    return alone_beside(main.desk, main.workers, [&] { return with_moved(std::move(photos), folder); });
}
