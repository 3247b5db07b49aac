#pragma once

#include "session/windows.h"

/// The hooks of all dialogs, one for each file of handlers; `connect_all` runs them. Other files reach a
/// handler through its control, not through these.

void connect_frmThemes(windows & all);
void connect_frmNewDesign(windows & all);
void connect_frmDesigns(windows & all);
void connect_frmCustom(windows & all);
void connect_frmFrameName(windows & all);
void connect_frmFrames(windows & all);
void connect_frmCaptions(windows & all);
void connect_frmIconName(windows & all);
void connect_frmCaptionText(windows & all);
void connect_frmMatrix(windows & all);
void connect_frmLettering(windows & all);
void connect_frmPuzzle(windows & all);
void connect_frmImage(windows & all);
void connect_frmPhotoCnt(windows & all);
void connect_frmSelectPhotos(windows & all);
void connect_frmPhotoList(windows & all);
void connect_frmPictureName(windows & all);
void connect_frmPictureList(windows & all);
void connect_frmPictures(windows & all);
void connect_frmSize(windows & all);
void connect_frmFont(windows & all);
void connect_frmAbout(windows & all);
