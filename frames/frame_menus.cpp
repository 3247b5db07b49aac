#include "frames/frame_menus.h"

#include "frames/icons/icon_list.h"
#include "frames/sets/frame_sets.h"
#include "session/windows.h"

namespace {

std::string icon_fault(const std::string & path)
{
    const bitmap icon = load_picture(picture_format::bmp, path);
    if (!icon)
        return "That does not appear to be a valid BMP file";
    if (icon.width() > widest_icon || icon.height() > highest_icon)
        return "The image needs to be 100 pixels wide by 90 pixels high or smaller.";
    return {};
}

}  // namespace

void add_custom_frame(frmMain & main)
{
    main.all->custom.edit_frame_name = unnamed_set;
    new_custom_frame(main);
}

void edit_custom_frames(frmMain & main)
{
    main.frame_manage_mode = true;
    if (start_custom_frames(main).empty())
        main.desk.message("You have no custom frames at this time.");
    else
        main.desk.show_modal(main.all->custom);
}

void import_icon(frmMain & main)
{
    const auto path = main.desk.choose_file(
        {.title = "Image file", .filter = "Image files |*.bmp", .folder = {}, .extension = {}});
    if (!path)
        return;
    main.icon_path = *path;
    const std::string fault = icon_fault(*path);
    if (fault.empty())
        main.desk.show_modal(main.all->icon_name);
    else
        main.desk.message(fault);
}
