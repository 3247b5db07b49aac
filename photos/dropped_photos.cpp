#include "photos/dropped_photos.h"

#include "intake/look.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"
#include "photos/lists/pls_line.h"
#include "photos/prepared_photos.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <set>

namespace {

constexpr std::size_t most_selected = 998;  // as many as a selection takes
constexpr std::size_t most_named = 20;      // more lines than that leave the screen

std::string without_separator_at_end(std::string path)
{
    while (path.size() > 1 && last_separator(path) == path.size() - 1)
        path.pop_back();
    return path;
}

std::string one_line(std::string text)
{
    std::ranges::replace_if(
        text, [](char sign) { return static_cast<unsigned char>(sign) < 32; }, '?');
    return text;
}

// Folders are taken by the endings of their files, as the chooser does, photos by what they are.
class drop_sorter {
public:
    void add(const std::string & path)
    {
        if (folder_exists(path))
            add_folder(path);
        else if (file_exists(path) && usable_jpeg_size(path))
            add_photo(path);
        else
            sorted.left_out.push_back(line_of({.path = path, .fault = fault_of(path)}));
    }

    void add_elsewhere(const std::string & address)
    {
        sorted.left_out.push_back(one_line(address) + ": it isn't a file of this computer");
    }

    dropped_photos sorted;

private:
    void add_folder(const std::string & folder)
    {
        try {
            const std::vector<std::string> photos = photos_in(folder);
            for (const std::string & photo : photos)
                add_photo(photo);
            if (photos.empty())
                sorted.left_out.push_back(one_line(folder) + ": there are no .jpg photos in it");
        } catch (const platform_error &) {
            sorted.left_out.push_back(one_line(folder) + ": it can't be opened");
        }
    }

    void add_photo(const std::string & photo)
    {
        if (seen.insert(photo).second)
            sorted.photos.push_back(photo);
    }

    std::set<std::string> seen;
};

std::vector<intake_photo> looked_at_drop(const dragged_files & dropped)
{
    std::vector<intake_photo> photos;
    for (const std::string & path : dropped.paths) {
        const std::string place = without_separator_at_end(path);
        if (!folder_exists(place))
            photos.push_back(looked_at(place));
        else
            for (intake_photo & photo : looked_at_folder(place))
                photos.push_back(std::move(photo));
    }
    return photos;
}

// Who drops photos wants them in: what a collage can't take as it is gets its copy unasked.
dragged_files with_copies(frmMain & main, const dragged_files & dropped)
{
    try {
        auto seen = alone_beside(main.desk, main.workers, [&] { return looked_at_drop(dropped); });
        auto ready = photos_with_copies(main, std::move(seen), copies_wanted::anyway);
        return ready ? dragged_files{.paths = std::move(*ready), .elsewhere = dropped.elsewhere} : dropped;
    } catch (const platform_error &) {
        return dropped;  // a folder that can't be opened is told of by name
    }
}

std::string box_text(const dropped_photos & found)
{
    std::string text = found.photos.empty() ? "Nothing of what you dropped can be used:"
                                            : "This was left out of what you dropped:";
    const std::size_t shown = std::min(found.left_out.size(), most_named);
    for (std::size_t i = 0; i < shown; ++i)
        text += "\r\n" + found.left_out[i];
    if (found.left_out.size() > shown)
        text += "\r\nand " + std::to_string(found.left_out.size() - shown) + " more";
    return text + "\r\n\r\nDrop JPEG photos of this computer, or folders of them.";
}

void use_folder(frmMain & main, const std::string & folder)
{
    photos_of_folder(main, folder);
    set_photo_source_kind(main, photo_source::folder);
    main.lblPhotos.set_caption("Folder:");
    main.txtPhotos.set_text(folder);
    main.txtPhotos.tag = folder;
}

void use_selection(frmMain & main, const std::vector<std::string> & photos)
{
    std::vector<std::string> lines;
    for (const std::string & photo : photos)
        lines.push_back(list_line(std::nullopt, photo));
    const std::string list = last_photos_path(main);
    replace_file(list, text_of(lines));
    main.working_list_path = main.txtPhotos.tag = list;
    main.selected_count = narrow(static_cast<long>(photos.size()));
    main.cmdPhotos.tag = std::to_string(photos.size());
    set_photo_source_kind(main, photo_source::selection);
    main.lblPhotos.set_caption("Selected:");
    main.txtPhotos.set_text(main.cmdPhotos.tag + " selected photos");
}

}  // namespace

dropped_photos photos_of_drop(const dragged_files & dropped)
{
    drop_sorter sorter;
    for (const std::string & path : dropped.paths)
        sorter.add(without_separator_at_end(path));
    for (const std::string & address : dropped.elsewhere)
        sorter.add_elsewhere(address);
    if (dropped.paths.size() == 1 && folder_exists(dropped.paths.front()) && !sorter.sorted.photos.empty())
        sorter.sorted.folder = without_separator_at_end(dropped.paths.front());
    return std::move(sorter.sorted);
}

dropped_photos told_photos_of_drop(frmMain & main, const dragged_files & dropped, std::size_t most)
{
    dropped_photos found;
    {
        const busy pointer(main.desk);
        found = photos_of_drop(with_copies(main, dropped));
    }
    if (!found.left_out.empty())
        main.desk.message(box_text(found));
    if (found.photos.size() > most && found.folder.empty()) {
        found.photos.resize(most);
        main.desk.message("Maximum number of photos reached");
    }
    return found;
}

bool use_as_source(frmMain & main, const dragged_files & dropped)
{
    const dropped_photos found = told_photos_of_drop(main, dropped, most_selected);
    if (found.photos.empty())
        return false;
    if (found.folder.empty())
        use_selection(main, found.photos);
    else
        use_folder(main, found.folder);
    main.photo_choice_cancelled = false;
    return true;
}
