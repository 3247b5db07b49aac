#include "photos/lists/saved_lists.h"

#include "photos/lists/list_name.h"
#include "photos/name_order.h"
#include "session/windows.h"
#include "support/files/paths.h"

void start_photo_list(frmMain & main)
{
    std::vector<std::string> names;
    const std::string folder = joined(main.data_folder, "piclists");
    for (const std::string & file : folder_exists(folder) ? in_name_order(files_in(folder)) : names)
        if (is_saved_list(file))
            names.push_back(list_name(file));
    main.all->picture_list.lstPictures.set_items(std::move(names));
}

std::string saved_list_path(const frmMain & main, const std::string & name)
{
    return joined(main.data_folder, "piclists/") + name + ".pls";
}
