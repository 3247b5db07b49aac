#include "photos/thumbnails/thumbnails.h"

#include "photos/thumbnails/found_thumbnail.h"
#include "support/files/beside.h"
#include "support/files/paths.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

void swap_for_thumbnail(std::string & entry)
{
    const std::string thumbnail = thumbnail_path(entry);
    if (!is_thumbnail(entry) && file_exists(thumbnail))
        entry = thumbnail;
}

// What was begun has to be so still.
std::optional<small_photo> found_ahead(frmMain & main, const std::string & photo)
{
    auto begun = main.thumbnails.begun.extract(photo);
    if (!begun)
        return std::nullopt;
    small_photo found = awaited(main.desk, std::move(begun.mapped()));
    const auto stamp = beside(main.desk, main.workers, [&] { return stamp_of(photo); });
    return stamp == found.photo ? std::optional(std::move(found)) : std::nullopt;
}

}  // namespace

void begin_thumbnails(frmMain & main, int index)
{
    thumbnails_ahead & ahead = main.thumbnails;
    const int workers = main.workers.count();
    ahead.next = std::max(ahead.next, index);
    for (; ahead.next <= main.table.last_photo && std::ssize(ahead.begun) < 2 * workers &&
           main.workers.has_room();
         ++ahead.next) {
        const std::string photo = photo_path(main.table[ahead.next]);
        if (!ahead.begun.contains(photo))
            ahead.begun[photo] = main.workers.begin([photo] { return found_thumbnail(photo); });
    }
}

void finish_thumbnails(frmMain & main)
{
    thumbnails_ahead & ahead = main.thumbnails;
    for (const auto & [photo, thumbnail] : ahead.begun)
        wait_for(main.desk, thumbnail);
    ahead.begun.clear();
    ahead.next = 0;
}

small_photo small_photo_of(frmMain & main, const std::string & photo)
{
    std::optional<small_photo> found = found_ahead(main, photo);
    if (!found)
        found = beside(main.desk, main.workers, [&] { return found_thumbnail(photo); });
    if (found->was_older)
        main.desk.message(photo + " IS NEWER");
    if (found->photo)
        main.thumbnails.counted[photo] = *found->photo;
    return std::move(*found);
}

std::string chk_sample_thumb(frmMain & main, const std::string & photo)
{
    return small_photo_of(main, photo).path;
}

void clear_thumbnail_places(frmMain & main)
{
    std::set<std::string> places;
    for (int i = 0; i <= main.table.last_photo; ++i)
        places.insert(folder_of(thumbnail_path(photo_path(main.table[i]))));
    alone_beside(main.desk, main.workers, [&] { std::ranges::for_each(places, remove_abandoned_parts); });
}

void photos_from_thumbnails(frmMain & main)
{
    for (int i = 0; i <= main.table.last_photo; ++i)
        main.table[i] = photo_path(main.table[i]);
}

void thumbnails_from_photos(frmMain & main)
{
    const auto end = main.table.photos.begin() + main.table.last_photo + 1;
    std::vector<std::string> entries(main.table.photos.begin(), end);
    entries = alone_beside(main.desk, main.workers, [&] {
        std::ranges::for_each(entries, swap_for_thumbnail);
        return std::move(entries);
    });
    std::ranges::move(entries, main.table.photos.begin());
}
