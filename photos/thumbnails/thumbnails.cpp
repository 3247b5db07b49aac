#include "photos/thumbnails/thumbnails.h"

#include "photos/scaled_jpeg.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <set>

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

// What lies there stays until a new one takes its place: others may be reading it.
bool has_place(const std::string & thumbnail)
{
    const std::string folder = folder_of(thumbnail);
    return tried([&] {
               if (!folder_exists(folder))
                   make_folder(folder);
           }) &&
           folder_writable(folder);
}

// The thumbnail, or the photo where it can't be written.
std::string made_thumbnail(const std::string & photo, const std::string & thumbnail)
{
    const bitmap small = small_picture(photo);
    if (small && tried([&] { save_jpeg(small, thumbnail); }))
        return thumbnail;
    tried([&] { delete_file(thumbnail); });  // an older one would show another picture
    return small ? photo : thumbnail;
}

// A photo that is there and has no thumbnail yet, in a place that can be written.
bool needs_one(const std::string & photo, const std::string & thumbnail)
{
    return file_exists(photo) && !file_exists(thumbnail) && has_place(thumbnail);
}

bool has_free_core(const thumbnails_ahead & ahead)
{
    const auto at_work =
        std::ranges::count_if(ahead.begun, [](const auto & each) { return !is_there(each.second); });
    return at_work < ahead.at_once && std::ssize(ahead.begun) < 4 * ahead.at_once;
}

// What another core made of the photo, waited for; nothing for one that wasn't begun.
std::optional<std::string> made_ahead(frmMain & main, const std::string & photo)
{
    const auto found = main.thumbnails.begun.extract(photo);
    return found ? std::optional(awaited(main.desk, std::move(found.mapped()))) : std::nullopt;
}

}  // namespace

void begin_thumbnails(frmMain & main, int index)
{
    constexpr int looked_ahead = 100;  // photos: more would hold up the window where all have theirs
    thumbnails_ahead & ahead = main.thumbnails;
    const int end = std::min<int>(main.table.last_photo + 1, index + looked_ahead);
    for (ahead.next = std::max(ahead.next, index); ahead.next < end && has_free_core(ahead); ++ahead.next) {
        const std::string photo = photo_path(main.table[ahead.next]), thumbnail = thumbnail_path(photo);
        if (!ahead.begun.contains(photo) && needs_one(photo, thumbnail))
            ahead.begun[photo] = std::async(std::launch::async,
                                            [photo, thumbnail] { return made_thumbnail(photo, thumbnail); });
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

std::string chk_sample_thumb(frmMain & main, const std::string & photo)
{
    if (!file_exists(photo))
        return {};
    if (const std::optional<std::string> made = made_ahead(main, photo))
        return *made;
    const std::string thumbnail = thumbnail_path(photo);
    if (file_exists(thumbnail)) {
        if (!is_newer(photo, thumbnail))
            return thumbnail;
        main.desk.message(photo + " IS NEWER");
    }
    if (!has_place(thumbnail))
        return photo;
    return beside(main.desk, [&] { return made_thumbnail(photo, thumbnail); });
}

void clear_thumbnail_places(const frmMain & main)
{
    std::set<std::string> places;
    for (int i = 0; i <= main.table.last_photo; ++i)
        places.insert(folder_of(thumbnail_path(photo_path(main.table[i]))));
    for (const std::string & place : places)
        remove_abandoned_parts(place);
}

void photos_from_thumbnails(frmMain & main)
{
    for (int i = 0; i <= main.table.last_photo; ++i)
        main.table[i] = photo_path(main.table[i]);
}

void thumbnails_from_photos(frmMain & main)
{
    for (int i = 0; i <= main.table.last_photo; ++i) {
        std::string & entry = main.table[i];
        if (is_thumbnail(entry))
            continue;
        const std::string thumbnail = thumbnail_path(entry);
        if (file_exists(thumbnail))
            entry = thumbnail;
    }
}
