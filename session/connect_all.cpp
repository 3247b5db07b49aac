#include "session/connect_all.h"

#include "session/handlers.h"
#include "session/main_window/connect_main.h"

void connect_all(windows & all)
{
    connect_main(all.main);
    connect_frmThemes(all);
    connect_frmNewDesign(all);
    connect_frmDesigns(all);
    connect_frmCustom(all);
    connect_frmFrameName(all);
    connect_frmFrames(all);
    connect_frmCaptions(all);
    connect_frmIconName(all);
    connect_frmCaptionText(all);
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
    connect_frmSize(all);
    connect_frmFont(all);
    connect_frmAbout(all);
}
