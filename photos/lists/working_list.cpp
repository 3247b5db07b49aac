#include "photos/lists/working_list.h"

#include "photos/lists/photo_list.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr int most_photos = 998;  // one more is written before the limit is noticed

}  // namespace

void folder_of_photos(frmMain & main)
{
    const std::optional<std::string> folder = main.desk.choose_folder("Select a folder and click OK");
    if (!folder || folder->empty())
        return;
    const std::vector<std::string> photos = photos_of_chosen_folder(main, *folder);
    add_to_working_list(main, photos);
    if (photos.empty())
        main.desk.message("There are no photos in that folder.");
}

void add_to_working_list(frmMain & main, std::vector<std::string> photos)
{
    if (photos.empty())
        return;
    const int room = std::max(1, most_photos + 1 - main.selected_count);
    photos.resize(std::min(photos.size(), static_cast<std::size_t>(room)));
    const int16 selected = narrow(main.selected_count + static_cast<long>(photos.size()));
    append_photos(main.working_list_path, photos);
    main.selected_count = selected;
    if (selected > most_photos)
        main.desk.message("Maximum number of photos reached");
}

bool has_room_in_working_list(const frmMain & main)
{
    return main.selected_count <= most_photos;
}

void clear_working_list(frmMain & main)
{
    delete_file(main.working_list_path);
    main.selected_count = 0;
}
