#include "session/main_window/load.h"

#include "designs/catalogue/last_flurn.h"
#include "designs/templates/unfinished.h"
#include "photos/lists/photo_list.h"
#include "session/begin_collage.h"
#include "session/start/start_up.h"
#include "session/window_state.h"
#include "support/files/paths.h"
#include "support/windows/display_faces.h"

namespace {

// In 1/15 pixel.
constexpr int upright_width = 15600, landscape_width = 17750, window_height = 10125;

void keep_size(frmMain & main)
{
    main.resize(main.optLandscape.selected() ? landscape_width : upright_width, window_height);
}

void reset_photos(frmMain & main)
{
    // The list of the last session does not survive a restart.
    delete_file(last_photos_path(main));
    set_photo_source_kind(main, photo_source::none);
    main.image_folder = main.photo_folder = main.pictures_folder;
}

void offer_custom_shape(frmMain & main)
{
    if (file_exists(joined(joined(main.data_folder, "user_images"), "custom_shape.gif")))
        main.cmbShapes.add_item("Custom shape");
}

void reset_design_flags(frmMain & main)
{
    begin_collage(main, collage_kind::none);
    main.run.collage_margin = 0;
    main.poster_tall = main.run.match_active = false;
}

void reset_window_flags(frmMain & main)
{
    main.in_preview = main.updating_controls = main.preview_blocked = false;
    main.quit_requested = main.skip_preview_click = false;
    main.menus_shown = true;
    main.bg_portrait = true;
    main.bg_color = main.caption_color = 0;
    main.font_extended = false;
}

void blacken(frmMain & main)
{
    main.picBGcolor.set_back_color(0);
    main.set_back_color(0);
}

void place_outline(frmMain & main)
{
    const box border = main.frmBorder.place();
    const box own = main.chkOutline.place();
    main.chkOutline.move_to(border.left - 50 - own.width, border.top + (border.height - own.height) / 2);
}

void place_shared_groups(frmMain & main)
{
    const box shake = main.frmShake.place();
    main.frmSpace.move_to(shake.left + 340, shake.top + 200);
    main.frmAlign.move_to(main.frmAlign.place().left, shake.top + 200);
    main.frmSquares.move_to(main.chkMatch.place().left + 30, main.chkEvolve.place().top - 125);
}

void reset_caption(frmMain & main)
{
    font_style font = main.txtCaption.font();
    if (const std::string face = face_to_begin_with(main.desk.font_names()); !face.empty())
        font.name = face;
    font.size = 16;
    font.bold = font.italic = font.underline = false;
    main.txtCaption.set_font(font);
    main.txtCaption.tag = "100";
}

void hide_background_picture(frmMain & main)
{
    main.txtBGimage.show(false);
    main.cmdBGimage.show(false);
    main.frmBlend.show(false);
}

}  // namespace

void load_main(frmMain & main)
{
    if (owns_data_folder(main)) {
        remove_leftovers(main);
        forget_last_flurn(main);
    }
    set_output_message();
    main.cmbFrame.set_text("10");
    main.cmbShadow.set_text("10");
    main.last_frame_size = main.cmbFrame.text();
    reset_photos(main);
    offer_custom_shape(main);
    main.frmAlign.show(false);
    main.frmSquares.show(false);
    main.chkOutline.show(false);
    place_outline(main);
    main.barDoing.show(false);
    reset_design_flags(main);
    reset_window_flags(main);
    blacken(main);
    main.picSplash.move({40, 145, 708, 470});
    keep_size(main);
    hide_background_picture(main);
    main.cmdFlurn.enable(false);
    reset_caption(main);
    show_work_controls(main, false);
    clear_matrix_design(main);
    main.collage_width = 2000;
    main.collage_height = 3000;
    place_shared_groups(main);
    main.cmbSpace.set_text("20");
}

void connect_load(frmMain & main)
{
    main.on_load = [&main] { load_main(main); };
    main.on_resize = [&main] { keep_size(main); };
}
