#include "photos/photo_menus.h"

#include "photos/lists/photo_list.h"
#include "photos/lists/saved_lists.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

namespace {

// A list that the user edited or deleted may have been the working list itself.
void recount_working_list(frmMain & main)
{
    const std::string list = last_photos_path(main);
    int count = 0;
    if (file_exists(list))
        for (line_source lines(list); !lines.at_end(); ++count)
            lines.read_line();
    main.selected_count = narrow(count);
    main.cmdPhotos.tag = std::to_string(count);
}

}  // namespace

// A list of that name was to be overwritten. The list stays on the disk under its name and is not the source
// of a collage.
void add_photo_list(frmMain & main)
{
    const std::string source = main.txtPhotos.tag;
    const auto list = ask(main.desk, main.all->picture_name);
    if (!list)
        return;
    delete_file(*list);
    delete_file(last_photos_path(main));
    main.working_list_path = *list;
    main.selected_count = 0;
    main.desk.show_modal(main.all->photo_list);
    main.selected_count = 0;
    main.txtPhotos.tag = source;
}

void save_last_photo_list(frmMain & main)
{
    if (!check_last_list(main))
        return;
    if (const auto list = ask(main.desk, main.all->picture_name))
        save_last_list(main, *list);
}

// The lists are managed and no source of a collage.
void edit_photo_lists(frmMain & main)
{
    main.picSplash.show(false);
    main.picSample.load("");
    main.photo_list_edit_mode = true;
    start_photo_list(main);
    if (main.all->picture_list.lstPictures.items().empty()) {
        main.desk.message("You have not created any photo lists yet.");
        return;
    }
    const std::string source = main.txtPhotos.tag;
    main.desk.show_modal(main.all->picture_list);
    main.txtPhotos.tag = source;
    recount_working_list(main);
}
