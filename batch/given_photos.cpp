#include "batch/given_photos.h"

#include "batch/arguments.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"
#include "photos/lists/pls_line.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace {

using paths = std::vector<std::string>;

void tell(const std::string & path, const std::string & what)
{
    std::fprintf(stderr, "%s %s\n", path.c_str(), what.c_str());
}

bool is_list(const std::string & path)
{
    return lower_case(path).ends_with(".pls") && !folder_exists(path);
}

paths photos_of_list(const std::string & list)
{
    paths photos;
    for (const std::string & line : lines_of_file(list))
        if (const std::string photo = photo_of_line(line); !photo.empty())
            photos.push_back(absolute_path(photo));
    return photos;
}

paths photos_of_whole_folder(const std::string & folder)
{
    paths photos = photos_in(folder);
    if (photos.empty())
        tell(folder, "has no .jpg files.");
    if (photos.size() > folder_limit) {
        tell(folder, "has more than " + std::to_string(folder_limit) + " photos; the others are left out.");
        photos.resize(folder_limit);
    }
    return photos;
}

// The photos that one word of the caller names. A folder or a list that can't be read is named, and has none.
paths photos_behind(const std::string & path)
{
    try {
        if (folder_exists(path))
            return photos_of_whole_folder(path);
        return is_list(path) ? photos_of_list(path) : paths{path};
    } catch (const platform_error & error) {
        tell(path, "is left out: " + std::string(error.what()));
        return {};
    }
}

// Empty for a photo that the session can use.
std::string fault_of(const std::string & photo)
{
    if (!file_exists(photo))
        return "is left out: there is no such file.";
    if (!file_readable(photo))
        return "is left out: it can't be read.";
    return usable_jpeg_size(photo) ? "" : "is left out: it is no JPEG photo of at most 32767 pixels a side.";
}

paths usable(const paths & photos)
{
    paths kept;
    for (const std::string & photo : photos) {
        const std::string fault =
            kept.size() < photo_table::capacity
                ? fault_of(photo)
                : "is left out: a collage has room for " + std::to_string(photo_table::capacity) + " photos.";
        if (fault.empty())
            kept.push_back(photo);
        else
            tell(photo, fault);
    }
    return kept;
}

void use_folder(frmMain & main, const std::string & folder, const paths & photos)
{
    std::ranges::copy(photos, main.table.photos.begin());
    main.table.last_photo = narrow(static_cast<long>(photos.size()) - 1);
    set_photo_source_kind(main, photo_source::folder);
    main.lblPhotos.set_caption("Folder:");
    main.txtPhotos.set_text(folder);
    main.txtPhotos.tag = folder;
}

// A list is read again by the session, so what is left of it goes to a list of its own.
void use_list(frmMain & main, const std::string & list, const paths & photos)
{
    main.txtPhotos.tag = last_photos_path(main);
    append_photos(main.txtPhotos.tag, photos);
    set_photo_source_kind(main, photo_source::list);
    main.lblPhotos.set_caption("Photo List:");
    main.txtPhotos.set_text(name_of(list));
    get_photos(main);
}

void use_selection(frmMain & main, const paths & photos)
{
    append_to_list(main, photos);
    set_photo_source_kind(main, photo_source::selection);
    main.lblPhotos.set_caption("Selected:");
    main.txtPhotos.set_text(std::to_string(main.selected_count) + " selected photos");
    get_photos(main);
}

}  // namespace

// A poster among the photos would be a photo of the next one, and a photo in the poster's place be lost.
void check_is_none_of(const paths & photos, const std::string & out)
{
    std::error_code missing;
    for (const std::string & photo : photos)
        if (std::filesystem::equivalent(photo, out, missing))
            throw bad_arguments{"\"" + out + "\" is one of the photos and would be replaced by the collage"};
}

void take_photos(frmMain & main, const std::vector<std::string> & given, const std::string & out)
{
    paths words, found;
    for (const std::string & path : given) {
        words.push_back(absolute_path(path));
        std::ranges::move(photos_behind(words.back()), std::back_inserter(found));
    }
    const paths photos = usable(found);
    if (photos.empty())
        throw platform_error(error_number::file_not_found, "There is no photo that could be used.",
                             words.front());
    check_is_none_of(photos, out);
    if (words.size() == 1 && folder_exists(words.front()))
        use_folder(main, words.front(), photos);
    else if (words.size() == 1 && is_list(words.front()))
        use_list(main, words.front(), photos);
    else
        use_selection(main, photos);
}

void name_left_out(const frmMain & main)
{
    for (const left_out_photo & photo : main.left_out.photos)
        std::fprintf(stderr, "%s; it is left out.\n", line_of(photo).c_str());
}
