#include "frames/sets/frame_sets.h"

#include "designs/templates/unfinished.h"
#include "session/windows.h"
#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

namespace {

std::string sets_folder(const frmMain & main)
{
    return joined(main.data_folder, "frames");
}

// A folder inside stays and fails the rest.
void delete_folder(const std::string & path)
{
    for (const std::string & name : files_in(path))
        delete_file(joined(path, name));
    remove_folder(path);
}

}  // namespace

// A name is joined as it stands: it may begin with what a path would lose.
std::string frame_set_folder(const frmMain & main, const std::string & set)
{
    return sets_folder(main) + path_separator + set;
}

const std::vector<std::string> & start_custom_frames(const frmMain & main)
{
    const std::string frames = sets_folder(main);
    std::vector<std::string> sets;
    for (const std::string & name : folder_exists(frames) ? folders_in(frames) : sets)
        if (name == unnamed_set)
            delete_folder(frame_set_folder(main, name));
        else
            sets.push_back(name);
    main.all->custom.lstFrames.set_items(std::move(sets));
    return main.all->custom.lstFrames.items();
}

bool offer_frame_sets(frmMain & main)
{
    main.collage.frame_set_name.clear();
    main.frame_manage_mode = false;
    if (!start_custom_frames(main).empty())
        return true;
    main.desk.message("You have no custom frames at this time.");
    return false;
}

bool choose_frame_set(frmMain & main)
{
    const auto set = ask(main.desk, main.all->custom);
    main.collage.frame_set_name = set.value_or("");
    return set.has_value();
}

void new_custom_frame(frmMain & main)
{
    const std::string folder = frame_set_folder(main, main.all->custom.edit_frame_name);
    if (folder_exists(folder))
        delete_folder(folder);
    if (!folder_exists(sets_folder(main)))
        make_folder(sets_folder(main));
    make_folder(folder);
    replace_file(joined(folder, "captions"), text_of(std::vector<std::string>(last_frame)));
    main.desk.show_modal(main.all->frames);
}

void delete_frame_set(const frmMain & main, const std::string & set)
{
    const std::string folder = frame_set_folder(main, set);
    if (!is_plain_name(set) || !folders_in(folder).empty()) {
        delete_folder(folder);
        return;
    }
    try {
        set_aside(main, joined("frames", set));
        forget_set_aside(main);
    } catch (const platform_error &) {
        put_back(main);
        throw;
    }
}
