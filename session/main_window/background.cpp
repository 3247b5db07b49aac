#include "session/main_window/background.h"

#include "session/main_window/redraw.h"
#include "session/window_state.h"
#include "support/files/paths.h"

#include <utility>

namespace {

void show_picture_controls(frmMain & main, bool show)
{
    main.txtBGimage.show(show);
    main.cmdBGimage.show(show);
    main.frmBlend.show(show);
}

void optSolid_click(frmMain & main)
{
    show_picture_controls(main, false);
    main.bg_color = main.picBGcolor.back_color();
    main.cmdFlurn.enable(true);
    refresh_preview(main);
}

// A choice that isn't made leaves the plain ground, and with it the picture that is shown.
bool picture_chosen(frmMain & main)
{
    const updating quiet(main);
    main.cmdBGimage.click();
    if (main.txtBGimage.text().empty())
        main.optSolid.select();
    return !main.txtBGimage.text().empty();
}

void optBGimage_click(frmMain & main)
{
    if (!main.collage.bg_from_design)
        show_picture_controls(main, true);
    main.cmdFlurn.enable(true);
    if (main.txtBGimage.text().empty() && !picture_chosen(main))
        return;
    refresh_after_change(main);
}

void turn_plain(frmMain & main)
{
    // The box is left when it hides, and ends the waiting itself.
    const bool preview_waits = std::exchange(main.drawn_background, std::nullopt).has_value();
    {
        const updating quiet(main);
        main.skip_preview_click = true;
        main.optSolid.select();
    }
    main.optSolid.take_focus();  // the box has gone
    if (preview_waits)
        resume_preview(main);
}

void txtBGimage_change(frmMain & main)
{
    // Code that empties the box settles the two options itself.
    if (main.txtBGimage.text().empty() && !main.updating_controls)
        turn_plain(main);
    main.cmdFlurn.enable(true);
    refresh_after_change(main);
}

// Pictures are loaded as JPEG, so nothing else is offered. A cancel leaves everything as it is.
void cmdBGimage_click(frmMain & main)
{
    const std::optional<std::string> chosen = main.desk.choose_file({.title = "Background image",
                                                                     .filter = "Image files (*.jpg)|*.jpg",
                                                                     .folder = main.image_folder,
                                                                     .extension = {}});
    if (!chosen)
        return;
    main.image_folder = folder_of(*chosen);
    const picture_size size = jpeg_size(*chosen).value_or(picture_size{});
    main.bg_portrait = size.width <= size.height;
    main.txtBGimage.set_text(*chosen);
}

void cmdBGcolor_click(frmMain & main)
{
    const std::optional<std::uint32_t> chosen = main.desk.choose_color(main.picBGcolor.back_color());
    if (!chosen)
        return;
    main.picBGcolor.set_back_color(*chosen);
    main.bg_color = *chosen;  // behind a picture that lets it through, too
    color_caption_box(main);
    refresh_after_change(main);
}

// A path that is half typed names no picture.
void txtBGimage_enter(frmMain & main)
{
    if (!main.optPreview.selected())
        return;
    main.drawn_background = main.txtBGimage.text();
    main.optPreview.select(false);
}

// What was typed is drawn when the user asks for it; where nothing was, the preview goes on.
void txtBGimage_leave(frmMain & main)
{
    const std::optional<std::string> drawn = std::exchange(main.drawn_background, std::nullopt);
    if (drawn == main.txtBGimage.text() && !main.optSample.selected())
        resume_preview(main);
}

void txtBGimage_return(frmMain & main)
{
    main.drawn_background.reset();
    main.optPreview.select();
    main.optPreview.take_focus();
}

}  // namespace

void connect_background(frmMain & main)
{
    main.optSolid.on_click = [&main] { optSolid_click(main); };
    main.optBGimage.on_click = [&main] { optBGimage_click(main); };
    main.txtBGimage.on_change = [&main] { txtBGimage_change(main); };
    main.txtBGimage.on_enter = [&main] { txtBGimage_enter(main); };
    main.txtBGimage.on_leave = [&main] { txtBGimage_leave(main); };
    main.txtBGimage.on_return = [&main] { txtBGimage_return(main); };
    main.cmdBGimage.on_click = [&main] { cmdBGimage_click(main); };
    main.cmdBGcolor.on_click = [&main] { cmdBGcolor_click(main); };
    main.picBGcolor.on_click = [&main] { main.cmdBGcolor.click(); };
    main.cmbBlend.on_typed = main.cmbBlend.on_click = [&main] { refresh_after_change(main); };
    for (option_button * each : main.border_options)
        each->on_click = [&main] { refresh_after_change(main); };
    main.chkOutline.on_change = [&main] { refresh_after_change(main); };
}
