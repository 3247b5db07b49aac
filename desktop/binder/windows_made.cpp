#include "desktop/binder/windows_made.h"

#include "ui_frmAbout.h"
#include "ui_frmCaptionText.h"
#include "ui_frmCaptions.h"
#include "ui_frmCustom.h"
#include "ui_frmDesigns.h"
#include "ui_frmFont.h"
#include "ui_frmFrameName.h"
#include "ui_frmFrames.h"
#include "ui_frmIconName.h"
#include "ui_frmImage.h"
#include "ui_frmLettering.h"
#include "ui_frmMain.h"
#include "ui_frmMatrix.h"
#include "ui_frmNewDesign.h"
#include "ui_frmPhotoCnt.h"
#include "ui_frmPhotoList.h"
#include "ui_frmPictureList.h"
#include "ui_frmPictureName.h"
#include "ui_frmPictures.h"
#include "ui_frmPuzzle.h"
#include "ui_frmSelectPhotos.h"
#include "ui_frmSize.h"
#include "ui_frmThemes.h"

#include <QDialog>
#include <QMainWindow>

#include <array>
#include <string_view>

namespace {

template <typename Window, typename Looks>
std::unique_ptr<QWidget> made(QWidget * parent)
{
    auto window = std::make_unique<Window>(parent);
    Looks().setupUi(window.get());
    return window;
}

struct maker {
    std::string_view form_name;
    std::unique_ptr<QWidget> (*make)(QWidget * parent);
};

// clang-format off
constexpr std::array makers{
    maker{"frmMain", made<QMainWindow, Ui::frmMain>},
    maker{"frmPhotoCnt", made<QDialog, Ui::frmPhotoCnt>},
    maker{"frmSelectPhotos", made<QDialog, Ui::frmSelectPhotos>},
    maker{"frmPhotoList", made<QDialog, Ui::frmPhotoList>},
    maker{"frmPictureName", made<QDialog, Ui::frmPictureName>},
    maker{"frmPictureList", made<QDialog, Ui::frmPictureList>},
    maker{"frmPictures", made<QDialog, Ui::frmPictures>},
    maker{"frmThemes", made<QDialog, Ui::frmThemes>},
    maker{"frmNewDesign", made<QDialog, Ui::frmNewDesign>},
    maker{"frmDesigns", made<QDialog, Ui::frmDesigns>},
    maker{"frmCustom", made<QDialog, Ui::frmCustom>},
    maker{"frmFrameName", made<QDialog, Ui::frmFrameName>},
    maker{"frmFrames", made<QDialog, Ui::frmFrames>},
    maker{"frmCaptions", made<QDialog, Ui::frmCaptions>},
    maker{"frmIconName", made<QDialog, Ui::frmIconName>},
    maker{"frmCaptionText", made<QDialog, Ui::frmCaptionText>},
    maker{"frmMatrix", made<QDialog, Ui::frmMatrix>},
    maker{"frmLettering", made<QDialog, Ui::frmLettering>},
    maker{"frmPuzzle", made<QDialog, Ui::frmPuzzle>},
    maker{"frmImage", made<QDialog, Ui::frmImage>},
    maker{"frmSize", made<QDialog, Ui::frmSize>},
    maker{"frmFont", made<QDialog, Ui::frmFont>},
    maker{"frmAbout", made<QDialog, Ui::frmAbout>},
};
// clang-format on

}  // namespace

std::unique_ptr<QWidget> make_window(const std::string & form_name, QWidget * parent)
{
    for (const maker & known : makers)
        if (known.form_name == form_name)
            return known.make(parent);
    return nullptr;
}
