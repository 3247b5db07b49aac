#pragma once

#include "designers/frmLettering.h"
#include "designers/frmMatrix.h"
#include "designers/frmPuzzle.h"
#include "designs/frmDesigns.h"
#include "designs/frmNewDesign.h"
#include "designs/frmThemes.h"
#include "engine/frmImage.h"
#include "frames/frmCaptionText.h"
#include "frames/frmCaptions.h"
#include "frames/frmCustom.h"
#include "frames/frmFrameName.h"
#include "frames/frmFrames.h"
#include "frames/frmIconName.h"
#include "photos/frmPhotoCnt.h"
#include "photos/frmPhotoList.h"
#include "photos/frmPictureList.h"
#include "photos/frmPictureName.h"
#include "photos/frmPictures.h"
#include "photos/frmSelectPhotos.h"
#include "session/frmMain.h"
#include "support/frmAbout.h"
#include "support/frmFont.h"
#include "support/frmSize.h"

#include <vector>

/// All windows of the session. One is opened with `desk.show_modal(all.image)`.
struct windows {
    windows(desktop & shown_on, const random_source & chance) : main(shown_on, chance, this) {}
    frmMain main;
    frmPhotoCnt photo_count;
    frmSelectPhotos select_photos;
    frmPhotoList photo_list;
    frmPictureName picture_name;
    frmPictureList picture_list;
    frmPictures pictures;
    frmThemes themes;
    frmNewDesign new_design;
    frmDesigns designs;
    frmCustom custom;
    frmFrameName frame_name;
    frmFrames frames;
    frmCaptions captions;
    frmIconName icon_name;
    frmCaptionText caption_text;
    frmMatrix matrix;
    frmLettering lettering;
    frmPuzzle puzzle;
    frmImage image;
    frmSize size;
    frmFont font;
    frmAbout about;

    /// Every window but the main one, in the order above.
    std::vector<form *> others()
    {
        return {&photo_count, &select_photos, &photo_list,   &picture_name, &picture_list, &pictures,
                &themes,      &new_design,    &designs,      &custom,       &frame_name,   &frames,
                &captions,    &icon_name,     &caption_text, &matrix,       &lettering,    &puzzle,
                &image,       &size,          &font,         &about};
    }
};
