#include "session/connect_all.h"

#include "designers/start_designer.h"
#include "quick/quick_controls.h"
#include "quick/start_quick.h"
#include "session/handlers.h"

void connect_all(windows & all)
{
    connect_load(all.main);
    connect_ornaments(all.main);
    connect_background(all.main);
    connect_caption(all.main);
    connect_shake(all.main);
    connect_output(all.main);
    connect_menus(all.main);
    connect_designed(all.main);
    connect_buttons(all.main);
    connect_quick_controls(all.main);
    connect_quick_styles(all.main);
    connect_quick_orientation(all.main);
    connect_quick_menu(all.main);
    connect_designer_menus(all.main);
    connect_frmThemes(all);
    connect_frmNewDesign(all);
    connect_frmDesigns(all);
    connect_design_menus(all);
    connect_frmCustom(all);
    connect_frmFrameName(all);
    connect_frmFrames(all);
    connect_frmCaptions(all);
    connect_frmIconName(all);
    connect_frmCaptionText(all);
    connect_frame_menus(all);
    connect_frmMatrix(all);
    connect_frmLettering(all);
    connect_frmPuzzle(all);
    connect_frmImage(all);
    connect_frmPhotoCnt(all);
    connect_frmSelectPhotos(all);
    connect_frmPhotoList(all);
    connect_frmPictureName(all);
    connect_frmPictureList(all);
    connect_frmPictures(all);
    connect_photo_menus(all);
    connect_frmSize(all);
    connect_frmFont(all);
    connect_frmAbout(all);
}
