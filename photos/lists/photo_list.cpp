#include "photos/lists/photo_list.h"

#include "intake/look.h"
#include "photos/left_out.h"
#include "photos/lists/pls_line.h"
#include "photos/name_order.h"
#include "photos/photo_orientation.h"
#include "photos/photo_shuffle.h"
#include "photos/prepared_photos.h"
#include "photos/thumbnails/found_thumbnail.h"
#include "photos/thumbnails/thumbnails.h"
#include "session/windows.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <utility>

namespace {

const file_request images_to_select{
    .title = "Image file",
    .filter = "Image files (*.jpg;*.gif;*.bmp;*.png;*.tif;*.tiff)|*.jpg;*.gif;*.bmp;*.png;*.tif;*.tiff",
    .folder = {},
    .extension = {}};

void show_progress(frmMain & main, int index)
{
    const int total = main.table.last_photo + 1;
    if (main.all != nullptr) {
        frmPhotoCnt & window = main.all->photo_count;
        window.lblCount.set_caption("Checking " + std::to_string(index) + "  of  " + std::to_string(total) +
                                    "  photos");
        window.barCount.tell(index, total);
    }
    main.desk.pump();
}

// Nothing when the photo is gone; the entry is then taken out.
std::optional<small_photo> swapped_for_thumbnail(frmMain & main, int index)
{
    std::string & entry = main.table[index];
    entry = photo_path(entry);
    small_photo found = small_photo_of(main, entry);
    if (found.path.empty()) {
        leave_out(main, entry, photo_fault::gone);
        remove_photo(main, index);
        --main.table.last_photo;
        return std::nullopt;
    }
    entry = found.path;
    return found;
}

std::string measured_line(frmMain & main, const std::string & photo)
{
    return list_line(counted_orientation(small_photo_of(main, photo).size), photo);
}

std::string measured_list(frmMain & main, const std::string & list)
{
    line_source lines(list);
    std::string text;
    while (!lines.at_end())
        text += text_of({measured_line(main, photo_of_line(lines.read_line()))});
    return text;
}

// How many there were more.
int cut_to_limit(std::vector<std::string> & photos)
{
    const std::size_t found = photos.size();
    photos.resize(std::min(found, folder_limit));
    return static_cast<int>(found - photos.size());
}

void put_in_table(frmMain & main, const std::vector<std::string> & photos)
{
    std::ranges::copy(photos, main.table.photos.begin());
    main.table.last_photo = narrow(static_cast<long>(photos.size()) - 1);
}

void take_folder_of(frmMain & main, std::vector<std::string> photos)
{
    main.table.beyond = cut_to_limit(photos);
    put_in_table(main, photos);
}

std::vector<std::string> photos_of_table(const frmMain & main)
{
    std::vector<std::string> photos;
    for (int i = 0; i <= main.table.last_photo; ++i)
        photos.push_back(photo_path(main.table[i]));
    return photos;
}

bool wants_reshuffle(frmMain & main)
{
    const question asked{.title = "S h u f f l e   t h e   P h o t o s",
                         .text =
                             "We are going to use each of your photos more than once in this collage.\r\n\r\n"
                             "Do you want to shuffle the photos before using them again?",
                         .offered = answers::yes_no};
    return main.desk.ask(asked) == answer::yes;
}

}  // namespace

void get_photos(frmMain & main)
{
    main.table.beyond = 0;
    const std::string & list = main.txtPhotos.tag;
    if (!file_exists(list)) {
        main.table.last_photo = 0;
        return;
    }
    line_source lines(list);
    int taken = 0;
    for (; taken < photo_table::capacity && !lines.at_end(); ++taken)
        main.table[taken] = photo_of_line(lines.read_line());
    main.table.last_photo = narrow(taken - 1);
}

std::vector<std::string> photos_in(const std::string & folder)
{
    std::vector<std::string> photos;
    for (const std::string & name : in_name_order(files_in(folder)))
        if (lower_case(name).ends_with(".jpg"))
            photos.push_back(folder + path_separator + name);
    return photos;
}

std::vector<std::string> photos_of_chosen_folder(frmMain & main, const std::string & folder)
{
    auto seen = alone_beside(main.desk, main.workers, [&folder] { return looked_at_folder(folder); });
    auto photos = photos_with_copies(main, std::move(seen), copies_wanted::asked);
    if (photos)
        return std::move(*photos);
    return alone_beside(main.desk, main.workers, [&folder] { return photos_in(folder); });
}

void photos_of_folder(frmMain & main, const std::string & folder)
{
    take_folder_of(main, alone_beside(main.desk, main.workers, [&folder] { return photos_in(folder); }));
}

std::string get_photo_folder(frmMain & main)
{
    const std::optional<std::string> folder = main.desk.choose_folder("Select a folder and click OK");
    if (!folder)
        main.table.last_photo = folder_cancelled;
    else if (!folder->empty())
        take_folder_of(main, photos_of_chosen_folder(main, *folder));
    return folder.value_or("");
}

void look_again_at_folder(frmMain & main, const std::string & folder)
{
    if (!folder_exists(folder))
        return;
    const std::vector<std::string> before = photos_of_table(main);
    const bool has_copies = std::ranges::any_of(
        before, [&](const std::string & photo) { return !photo.starts_with(folder + path_separator); });
    std::optional<std::vector<std::string>> now;
    if (has_copies) {
        auto seen = alone_beside(main.desk, main.workers, [&folder] { return looked_at_folder(folder); });
        const bool needs_copies = count_of_needing(seen) > 0;
        now = photos_with_copies(main, std::move(seen), copies_wanted::anyway);
        if (needs_copies && !now)
            return;  // the user didn't wait for them: those that are in use stay
    }
    if (!now)
        now = alone_beside(main.desk, main.workers, [&folder] { return photos_in(folder); });
    main.table.beyond = cut_to_limit(*now);
    if (!std::ranges::is_permutation(before, *now))
        put_in_table(main, *now);
}

std::vector<std::string> choose_photos(frmMain & main)
{
    file_request asked = images_to_select;
    asked.folder = main.photo_folder;
    std::vector<std::string> photos = main.desk.choose_files(asked);
    if (!photos.empty())
        main.photo_folder = folder_of(photos.front());
    return chosen_files_with_copies(main, photos);
}

void get_selected_photos(frmMain & main)
{
    const std::vector<std::string> photos = choose_photos(main);
    if (photos.empty())
        main.photo_choice_cancelled = true;
    else
        append_to_list(main, photos);
}

void append_to_list(frmMain & main, const std::vector<std::string> & photos)
{
    std::string & list = main.txtPhotos.tag;
    if (list.empty())
        list = last_photos_path(main);
    const int16 selected = narrow(main.selected_count + static_cast<long>(photos.size()));
    append_photos(list, photos);
    main.selected_count = selected;
    main.cmdPhotos.tag = std::to_string(main.selected_count);
}

void append_photos(const std::string & list, const std::vector<std::string> & photos)
{
    std::string text = file_exists(list) ? read_file(list) : std::string();
    if (!text.empty() && !text.ends_with('\n'))
        text += "\r\n";
    for (const std::string & photo : photos)
        text += list_line(std::nullopt, photo) + "\r\n";
    replace_file(list, text);
}

std::string last_photos_path(const frmMain & main)
{
    return work_path(main, "piclists/last_photos.pls");
}

bool check_last_list(frmMain & main)
{
    const bool there = file_exists(last_photos_path(main));
    if (!there)
        main.desk.message("No picture list to be saved");
    return there;
}

void save_last_list(frmMain & main, const std::string & target)
{
    if (!check_last_list(main))
        return;
    const busy pointer(main.desk);
    const std::string list = last_photos_path(main);
    replace_file(target, measured_list(main, list));
    delete_file(list);
    main.selected_count = 0;
    set_photo_source_kind(main, photo_source::none);
}

void remove_photo(frmMain & main, int index)
{
    photo_table & table = main.table;
    for (int i = index; i < table.last_photo; ++i)
        table[i] = std::move(table[i + 1]);
}

void count_photos(frmMain & main)
{
    clear_thumbnail_places(main);
    finish_thumbnails(main);
    orientation_counts counts;
    for (int index = 0; index <= main.table.last_photo;) {
        begin_thumbnails(main, index);
        show_progress(main, index);
        const std::optional<small_photo> found = swapped_for_thumbnail(main, index);
        if (!found)
            continue;
        ++index;
        if (is_still_coming(*found))
            leave_out(main, found->path, photo_fault::cut_short);
        else if (!found->size)
            leave_out(main, found->path);
        add_photo(counts, counted_orientation(found->size));
    }
    finish_thumbnails(main);
    main.table.landscape_count = counts.landscape;
    main.table.portrait_count = counts.portrait;
    main.table.orientation_list = std::move(counts.list);
}

void shuffle_photos(frmMain & main)
{
    main.random.reseed();
    shuffle(main.table, main.random);
}

void ask_reshuffle(frmMain & main)
{
    photo_table::reshuffle & choice = main.table.reshuffle_choice;
    if (choice == photo_table::reshuffle::not_asked)
        choice = wants_reshuffle(main) ? photo_table::reshuffle::yes : photo_table::reshuffle::no;
    if (choice == photo_table::reshuffle::yes)
        shuffle_photos(main);
}
