#pragma once

#include "designers/lettering/frmLettering.h"
#include "designers/matrix/frmMatrix.h"
#include "designers/puzzle/frmPuzzle.h"
#include "designs/browser/frmThemes.h"
#include "designs/catalogue/frmDesigns.h"
#include "designs/catalogue/frmNewDesign.h"
#include "engine/output/frmImage.h"
#include "frames/captions/frmCaptionText.h"
#include "frames/captions/frmCaptions.h"
#include "frames/icons/frmIconName.h"
#include "frames/sets/frmCustom.h"
#include "frames/sets/frmFrameName.h"
#include "frames/sets/frmFrames.h"
#include "photos/editor/frmPictures.h"
#include "photos/frmPhotoCnt.h"
#include "photos/frmSelectPhotos.h"
#include "photos/lists/frmPhotoList.h"
#include "photos/lists/frmPictureList.h"
#include "photos/lists/frmPictureName.h"
#include "session/frmMain.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmFont.h"
#include "support/windows/frmSize.h"

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
