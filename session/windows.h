#pragma once

#include "designs/frmDesigns.h"
#include "designs/frmNewDesign.h"
#include "designs/frmThemes.h"
#include "engine/frmImage.h"
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
    frmImage image;
    frmSize size;
    frmFont font;
    frmAbout about;

    /// Every window but the main one, in the order above.
    std::vector<form *> others()
    {
        return {&photo_count, &select_photos, &photo_list, &picture_name, &picture_list, &pictures, &themes,
                &new_design,  &designs,       &image,      &size,         &font,         &about};
    }
};
