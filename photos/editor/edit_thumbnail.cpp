#include "photos/editor/edit_thumbnail.h"

#include "photos/editor/photo_cells.h"
#include "photos/image_file.h"
#include "photos/scaled_jpeg.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

namespace {

bitmap loaded(int format, const std::string & path)
{
    return format < 0 ? bitmap() : load_picture(static_cast<picture_format>(format), path);
}

orientation shape_of(const bitmap & picture)
{
    return picture.width() > picture.height() ? orientation::landscape : orientation::portrait;
}

// False where the place can't be written.
bool written(int format, const bitmap & small, const std::string & thumbnail)
{
    try {
        save_picture(static_cast<picture_format>(format), small, thumbnail);
        return true;
    } catch (const platform_error &) {
        return false;
    }
}

picture_size cell_of(orientation shape)
{
    const box place = cell_place(0, shape);
    return {.width = place.width, .height = place.height};
}

struct fitted_picture {
    bitmap picture;
    orientation shape = orientation::portrait;
};

// Nothing where the photo has to be loaded.
std::optional<fitted_picture> read_by_rows(const std::string & photo)
{
    const std::optional<picture_size> own = usable_jpeg_size(photo);
    if (!own)
        return std::nullopt;
    const orientation shape = own->width > own->height ? orientation::landscape : orientation::portrait;
    photo_memory memory;
    std::optional<bitmap> read = read_thumbnail(photo, cell_of(shape), memory);
    return read ? std::optional(fitted_picture{std::move(*read), shape}) : std::nullopt;
}

fitted_picture small_of(int format, const std::string & photo)
{
    if (format == static_cast<int>(picture_format::jpeg))
        if (std::optional<fitted_picture> read = read_by_rows(photo))
            return std::move(*read);
    const bitmap full = loaded(format, photo);
    if (!full)
        throw platform_error(error_number::invalid_call, "The picture can't be loaded.", photo);
    const orientation shape = shape_of(full);
    const picture_size cell = cell_of(shape);
    return {rescaled(full, cell.width, cell.height), shape};
}

edit_thumbnail made(int format, const std::string & photo)
{
    if (!file_exists(photo))
        throw platform_error(error_number::file_not_found, "File not found", photo);
    const fitted_picture small = small_of(format, photo);
    const std::string thumbnail = edit_thumbnail_path(photo);
    return {.file = written(format, small.picture, thumbnail) ? thumbnail : photo, .shape = small.shape};
}

}  // namespace

int chk_imagefile(frmMain & main, const std::string & path, std::string & base, bad_file report)
{
    image_file found = image_file_of(path);
    if (found.format < 0 && report == bad_file::told)
        main.desk.message("Bad image file: " + path);
    base = std::move(found.base);
    return found.format;
}

std::string edit_thumbnail_path(const std::string & photo)
{
    const std::string name = name_of(photo);
    return photo.substr(0, photo.size() - name.size()) + "__thumbs" + path_separator + name;
}

bool make_thumbnail_folder(const std::string & photo)
{
    const std::string folder = folder_of(edit_thumbnail_path(photo));
    if (folder_exists(folder))
        return true;
    if (file_exists(folder))
        return false;
    try {
        make_folder(folder);
    } catch (const platform_error &) {
        // A place that can't be written: the photo will stand in for its thumbnail.
    }
    return true;
}

edit_thumbnail thumbnail_for_editing(frmMain & main, const std::string & photo)
{
    std::string base;
    const int format = chk_imagefile(main, photo, base, bad_file::silent);
    const std::string thumbnail = edit_thumbnail_path(photo);
    if (const bitmap small = beside(main.desk, main.workers, [&] { return loaded(format, thumbnail); }))
        return {.file = thumbnail, .shape = shape_of(small)};
    main.desk.pump();
    return beside(main.desk, main.workers, [&] { return made(format, photo); });
}
