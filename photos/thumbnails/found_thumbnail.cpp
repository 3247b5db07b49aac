#include "photos/thumbnails/found_thumbnail.h"

#include "photos/scaled_jpeg.h"
#include "photos/thumbnails/thumbnail_mark.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "photos/unfinished_photo.h"
#include "support/files/steady_look.h"
#include "support/files/text_file.h"
#include "support/jpeg_end.h"
#include "support/platform_error.h"

#include <fstream>

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

// One that was cut short has a header still.
bool is_whole(const std::string & thumbnail)
{
    return has_mark_of_end(thumbnail) && usable_jpeg_size(thumbnail);
}

// How a thumbnail stands to its photo. One without a mark may be older than these marks, and is
// then as likely the photo's own as that of another photo which was there before it: it is made anew where
// that can be done.
enum class standing { missing, own, doubtful, broken, of_another, older };

standing standing_of(const std::string & thumbnail, const file_stamp & photo)
{
    const std::optional<file_stamp> stamp = stamp_of(thumbnail);
    if (!stamp)
        return standing::missing;
    if (photo.changed > stamp->changed)
        return standing::older;
    if (!is_whole(thumbnail))
        return standing::broken;
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

}  // namespace

bool is_still_coming(const small_photo & photo)
{
    return photo.photo == file_stamp{};
}

// A photo that is replaced meanwhile gets a thumbnail of what is there now.
small_photo found_thumbnail(const std::string & photo)
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
