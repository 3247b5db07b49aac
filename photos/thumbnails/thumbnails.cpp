#include "photos/thumbnails/thumbnails.h"

#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <set>

namespace {

constexpr picture_size portrait_thumbnail{.width = 150, .height = 200};
constexpr picture_size landscape_thumbnail{.width = 200, .height = 150};

// The proportions are not kept: a small picture only has to tell photos apart.
bitmap small_picture(const std::string & photo)
{
    if (!usable_jpeg_size(photo))
        return {};  // of too many pixels on a side as well
    const bitmap full = load_picture(picture_format::jpeg, photo);
    const picture_size size = full.height() > full.width() ? portrait_thumbnail : landscape_thumbnail;
    return rescaled(full, size.width, size.height);
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

}  // namespace

std::string chk_sample_thumb(frmMain & main, const std::string & photo)
{
    if (!file_exists(photo))
        return {};
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
