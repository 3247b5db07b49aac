#include "photos/thumbnails/thumbnails.h"

#include "photos/scaled_jpeg.h"
#include "photos/thumbnails/thumbnail_mark.h"
#include "photos/unfinished_photo.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/steady_look.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <vector>

namespace {

constexpr picture_size portrait_thumbnail{.width = 150, .height = 200};
constexpr picture_size landscape_thumbnail{.width = 200, .height = 150};

// The proportions are not kept: a small picture only has to tell photos apart.
bitmap small_picture(const std::string & photo)
{
    const std::optional<picture_size> own = usable_jpeg_size(photo);
    if (!own)
        return {};  // of too many pixels on a side as well
    const picture_size size = own->height > own->width ? portrait_thumbnail : landscape_thumbnail;
    photo_memory memory;
    if (std::optional<bitmap> small = read_thumbnail(photo, size, memory))
        return std::move(*small);
    return rescaled(load_picture(picture_format::jpeg, photo), size.width, size.height);
}

// Several workers may make the folder at the same time. What lies there stays until a new one takes its
// place: others may be reading it.
bool has_place(const std::string & thumbnail)
{
    const std::string folder = folder_of(thumbnail);
    if (!folder_exists(folder))
        tried([&] { make_folder(folder); });
    return folder_exists(folder) && folder_writable(folder);
}

// A thumbnail has the time of its photo.
void write_thumbnail(const bitmap & small, const std::string & thumbnail, const file_stamp & photo)
{
    write_file(thumbnail, marked_thumbnail(jpeg_bytes(small), photo.bytes));
    set_changed(thumbnail, photo.changed);
}

// The thumbnail, or the photo where it can't be written.
std::string made_thumbnail(const std::string & photo, const std::string & thumbnail, const file_stamp & stamp)
{
    const bitmap small = small_picture(photo);
    if (small && tried([&] { write_thumbnail(small, thumbnail, stamp); }))
        return thumbnail;
    tried([&] { delete_file(thumbnail); });  // an older one would show another picture
    return small ? photo : thumbnail;
}

std::string beginning_of(const std::string & path)
{
    std::string bytes(room_of_mark, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

// How a thumbnail that is there stands to its photo. One without a mark may be older than these marks, and is
// then as likely the photo's own as that of another photo which was there before it: it is made anew where
// that can be done.
enum class standing { missing, own, doubtful, of_another, older };

standing standing_of(const std::string & thumbnail, const file_stamp & photo)
{
    const std::optional<file_stamp> stamp = stamp_of(thumbnail);
    if (!stamp)
        return standing::missing;
    if (photo.changed > stamp->changed)
        return standing::older;
    const std::optional<std::uint64_t> bytes = marked_bytes(beginning_of(thumbnail));
    const bool is_same = photo.changed == stamp->changed && bytes.value_or(photo.bytes) == photo.bytes;
    if (is_same)
        return standing::own;
    return bytes ? standing::of_another : standing::doubtful;
}

// What stands in for the photo where its thumbnail is to be made.
std::string replaced_thumbnail(const std::string & photo, const std::string & thumbnail,
                               const file_stamp & stamp, standing found)
{
    if (has_place(thumbnail))
        return made_thumbnail(photo, thumbnail, stamp);
    return found == standing::doubtful ? thumbnail : photo;
}

// Its stamp is one that no file has: a run looks anew at what has come of it.
small_photo still_coming(const std::string & photo)
{
    tried([&] { delete_file(thumbnail_path(photo)); });  // of what was there before
    return {.path = photo, .size = {}, .photo = file_stamp{}};
}

small_photo looked_at(const std::string & photo, const file_stamp & stamp)
{
    const std::string thumbnail = thumbnail_path(photo);
    const standing found = standing_of(thumbnail, stamp);
    if (found != standing::own && is_unfinished(photo))
        return still_coming(photo);
    const std::string path =
        found == standing::own ? thumbnail : replaced_thumbnail(photo, thumbnail, stamp, found);
    return {
        .path = path, .size = usable_jpeg_size(path), .photo = stamp, .was_older = found == standing::older};
}

// What a worker does. A photo that is replaced meanwhile gets a thumbnail of what is there now.
small_photo found_or_made(const std::string & photo)
{
    std::optional<bool> was_older;  // than the one that was there before all this
    std::optional<small_photo> found = steady_look(photo, [&](const file_stamp & stamp) {
        small_photo made = looked_at(photo, stamp);
        was_older = made.was_older = was_older.value_or(made.was_older);
        return made;
    });
    if (found)
        return std::move(*found);
    return file_exists(photo) ? still_coming(photo) : small_photo{};
}

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

bool is_still_coming(const small_photo & photo)
{
    return photo.photo == file_stamp{};
}

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
            ahead.begun[photo] = main.workers.begin([photo] { return found_or_made(photo); });
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
        found = beside(main.desk, main.workers, [&] { return found_or_made(photo); });
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
