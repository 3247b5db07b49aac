#include "frames/icons/icon_list.h"
#include "frames/sets/frame_sets.h"
#include "session/handlers.h"

// The menu of the frames.

namespace {

void mnuNewFrame_click(frmMain & main)
{
    main.all->custom.edit_frame_name = unnamed_set;
    new_custom_frame(main);
}

void mnuEditFrame_click(frmMain & main)
{
    main.frame_manage_mode = true;
    if (start_custom_frames(main).empty())
        main.desk.message("You have no custom frames at this time.");
    else
        main.desk.show_modal(main.all->custom);
}

std::string icon_fault(const std::string & path)
{
    const bitmap icon = load_picture(picture_format::bmp, path);
    if (!icon)
        return "That does not appear to be a valid BMP file";
    if (icon.width() > widest_icon || icon.height() > highest_icon)
        return "The image needs to be 100 pixels wide by 90 pixels high or smaller.";
    return {};
}

void mnuIcon_click(frmMain & main)
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

}  // namespace

void connect_frame_menus(windows & all)
{
    all.main.mnuNewFrame.on_click = [&all] { mnuNewFrame_click(all.main); };
    all.main.mnuEditFrame.on_click = [&all] { mnuEditFrame_click(all.main); };
    all.main.mnuIcon.on_click = [&all] { mnuIcon_click(all.main); };
}
