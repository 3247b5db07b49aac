#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "session/windows.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

#include <gtest/gtest.h>

namespace {

struct text_of_control {
    const char * window;
    const char * control;
    const char * text;
};

// What a user reads in each window, control by control; the menus stand with a blank before them.
constexpr text_of_control texts[] = {
    {"frmMain", "mnuFile", "File"},
    {"frmMain", "mnuRecent", "Recent flurns"},
    {"frmMain", "mnuQuit", "Quit"},
    {"frmMain", "mnuQuick", " Quick flurn"},
    {"frmMain", "mnuDesigned", " Designed flurn"},
    {"frmMain", "mnuMatrix", " Matrix flurn"},
    {"frmMain", "mnuLettering", "Lettering flurn"},
    {"frmMain", "mnuPuzzle", "Puzzle flurn"},
    {"frmMain", "mnuSeparator", " || "},
    {"frmMain", "mnuDesign", " Designs"},
    {"frmMain", "mnuImport", "Import design"},
    {"frmMain", "mnuEditDesigns", "Edit designs"},
    {"frmMain", "mnuSaveDesign", "Save last Flurn"},
    {"frmMain", "mnuFrames", " Frames"},
    {"frmMain", "mnuNewFrame", "New custom frame"},
    {"frmMain", "mnuEditFrame", "Edit frames"},
    {"frmMain", "mnuIcon", "Import icon"},
    {"frmMain", "mnuPictures", " Photos"},
    {"frmMain", "mnuSaveLast", "Save last photo list"},
    {"frmMain", "mnuNewList", "Add new photo list"},
    {"frmMain", "mnuEditSelections", "Edit photo list"},
    {"frmMain", "mnuHelp", " Help"},
    {"frmMain", "mnuHelpTopics", "Help topics"},
    {"frmMain", "mnuStarted", "Tutorials"},
    {"frmMain", "mnuFAQ", "FAQ"},
    {"frmMain", "mnuHelpAbout", "About Flurns"},
    {"frmMain", "cmdShuffle", "Shuffle Photos"},
    {"frmMain", "cmdPhotos", "Change Photos"},
    {"frmMain", "chkMatch", "Match"},
    {"frmMain", "chkRandom", "Random"},
    {"frmMain", "chkEvolve", "Evolve"},
    {"frmMain", "lblTemplate", "Design:"},
    {"frmMain", "frmShake", "  Shake the Design  "},
    {"frmMain", "chkResize", "Resize photos"},
    {"frmMain", "chkRotate", "Rotate photos"},
    {"frmMain", "chkShuffle", "Shuffle design"},
    {"frmMain", "chkMix", "Mix it up"},
    {"frmMain", "lblBorder", "Spacing:"},
    {"frmMain", "optAlignTop", "Top"},
    {"frmMain", "optAlignCenter", "Center"},
    {"frmMain", "optAlignBottom", "Bottom"},
    {"frmMain", "lblAlign", "Align:"},
    {"frmMain", "lblRows", "Rows"},
    {"frmMain", "lblCols", "Columns"},
    {"frmMain", "frmOrientation", "   O r i e n t a t i o n   "},
    {"frmMain", "optPortrait", "Portrait"},
    {"frmMain", "optLandscape", "Landscape"},
    {"frmMain", "optSquare", "Square"},
    {"frmMain", "frmStyle", "  Q u i c k   S t y l e   "},
    {"frmMain", "optBlock", "Block"},
    {"frmMain", "optScatter", "Scattered"},
    {"frmMain", "optMatrix", "Matrix"},
    {"frmMain", "optShapes", "Shapes"},
    {"frmMain", "frmOrnaments", "   F r a m e   S t y l e   "},
    {"frmMain", "chkRounded", "Rounded"},
    {"frmMain", "chkCaption", "Captions"},
    {"frmMain", "chkSoftEdge", "Soft"},
    {"frmMain", "lblFrame", "Frame size:"},
    {"frmMain", "cmdFrameColor", "Frame Color"},
    {"frmMain", "lblShadow", "Shadow size:"},
    {"frmMain", "cmdShadowColor", "Shadow Color"},
    {"frmMain", "frmBackground", "   B a c k g r o u n d    "},
    {"frmMain", "optSolid", "Solid color"},
    {"frmMain", "optBGimage", "Photo"},
    {"frmMain", "cmdBGcolor", "Color"},
    {"frmMain", "cmdBGimage", "Browse"},
    {"frmMain", "lblBlend", "Percent blend:"},
    {"frmMain", "frmBorder", "   B o r d e r   S i z e   "},
    {"frmMain", "optNone", "None"},
    {"frmMain", "optTiny", "Tiny"},
    {"frmMain", "optSmall", "Small"},
    {"frmMain", "optMedium", "Medium"},
    {"frmMain", "optLarge", "Large"},
    {"frmMain", "optHuge", "Huge"},
    {"frmMain", "chkOutline", "Outline the photos"},
    {"frmMain", "frmCaption", "   C o l l a g e   C a p t i o n   "},
    {"frmMain", "optTop", "Caption top"},
    {"frmMain", "optBottom", "Caption bottom"},
    {"frmMain", "chkClear", "Cleared caption"},
    {"frmMain", "cmdFont", "Font"},
    {"frmMain", "lblFontSize", "Font Size:"},
    {"frmMain", "optPreview", "Preview On"},
    {"frmMain", "optSample", "Preview Off"},
    {"frmMain", "cmdFlurn", "Flurn"},
    {"frmMain", "cmdCancel", "Cancel"},
    {"frmMain", "cmdHelp", "Help"},
    {"frmCustom", "cmdEdit", "Edit"},
    {"frmFrameName", "lblName", "Provide a name for your new custom frame set: "},
    {"frmFrameName", "cmdOk", "Ok"},
    {"frmFrameName", "cmdCancel", "Cancel"},
    {"frmFrames", "cmdOutside", "Outside Color"},
    {"frmFrames", "cmdInside", "Inside Color"},
    {"frmFrames", "cmdCaption", "Caption Color"},
    {"frmFrames", "cmdFont", "Font"},
    {"frmFrames", "lblCaption", "Default Caption:"},
    {"frmFrames", "lblIcon", "Icon:"},
    {"frmFrames", "lblPictures", "Photo List:"},
    {"frmFrames", "cmdCaptions", "Add Captions"},
    {"frmFrames", "cmdSave", "Save"},
    {"frmFrames", "cmdCancel", "Cancel"},
    {"frmFrames", "cmdHelp", "Help"},
    {"frmCaptions", "cmdInsert", "Insert"},
    {"frmCaptions", "cmdRemove", "Remove"},
    {"frmCaptions", "cmdDone", "Done"},
    {"frmCaptions", "cmdCancel", "Cancel"},
    {"frmCaptions", "cmdHelp", "Help"},
    {"frmIconName", "lblName", "Enter the name for your new icon:"},
    {"frmIconName", "cmdOk", "Ok"},
    {"frmIconName", "cmdCancel", "Cancel"},
    {"frmCaptionText", "lblCaption", "Enter a new caption:"},
    {"frmCaptionText", "cmdOk", "Ok"},
    {"frmCaptionText", "cmdCancel", "Cancel"},
    {"frmCaptionText", "cmdClear", "Clear"},
    {"frmThemes", "frmStyle", "  Style  "},
    {"frmThemes", "optAll", "All"},
    {"frmThemes", "optScatter", "Scatter"},
    {"frmThemes", "optBlock", "Solid Block"},
    {"frmThemes", "optTheme", "Theme"},
    {"frmThemes", "optSaved", "Saved"},
    {"frmThemes", "optFrames", "Custom Frame"},
    {"frmThemes", "frmDesigns", "  Available Designs  "},
    {"frmThemes", "chkRandom", "Random"},
    {"frmThemes", "chkFlip", "Flip"},
    {"frmThemes", "chkMirror", "Mirror:"},
    {"frmThemes", "cmdPage_plus", "Page  >"},
    {"frmThemes", "cmdPage_minus", "<  Page"},
    {"frmThemes", "cmdNext", "Next"},
    {"frmThemes", "cmdPrevious", "Previous"},
    {"frmThemes", "cmdOk", "Ok"},
    {"frmThemes", "cmdCancel", "Cancel"},
    {"frmThemes", "cmdHelp", "Help"},
    {"frmSelectPhotos", "", "Select the photos you want to use in this collage:"},
    {"frmSelectPhotos", "optFolder", "Photo folder"},
    {"frmSelectPhotos", "optList", "Photo list"},
    {"frmSelectPhotos", "optSelect", "Selected photos"},
    {"frmSelectPhotos", "optChange", "Change selected photos"},
    {"frmSelectPhotos", "optUnseen", "Selected photos"},
    {"frmSelectPhotos", "cmdCards", "Browse"},
    {"frmSelectPhotos", "cmdOk", "Ok"},
    {"frmSelectPhotos", "cmdCancel", "Cancel"},
    {"frmSelectPhotos", "cmdHelp", "Help"},
    {"frmPhotoList", "cmdFolder", "Folder"},
    {"frmPhotoList", "cmdPhotos", "Add  Photos"},
    {"frmPhotoList", "cmdClear", "Clear"},
    {"frmPhotoList", "cmdEdit", "Edit"},
    {"frmPhotoList", "", "Add all photos from a folder"},
    {"frmPhotoList", "", "Add selected individual photos"},
    {"frmPhotoList", "", "Clear all photos"},
    {"frmPhotoList", "txtEdit", "Edit the photo list"},
    {"frmPhotoList", "cmdDone", "Done"},
    {"frmPhotoList", "cmdCancel", "Cancel"},
    {"frmPhotoList", "cmdHelp", "Help"},
    {"frmPictures", "cmdAdd", "Add Photos"},
    {"frmPictures", "cmdSave", "Save"},
    {"frmPictures", "cmdCancel", "Cancel"},
    {"frmPictures", "cmdHelp", "Help"},
    {"frmPictureList", "cmdEdit", "Edit"},
    {"frmNewDesign", "lblName", "Design name:"},
    {"frmNewDesign", "lblDescription", "Description:"},
    {"frmNewDesign", "OKButton", "OK"},
    {"frmNewDesign", "CancelButton", "Cancel"},
    {"frmNewDesign", "cmdHelp", "Help"},
    {"frmDesigns", "cmdDelete", "Delete"},
    {"frmDesigns", "cmdDone", "Done"},
    {"frmPictureName", "", "Enter the name for your new photo list:"},
    {"frmPictureName", "cmdOk", "Ok"},
    {"frmPictureName", "cmdCancel", "Cancel"},
    {"frmImage", "cmdSave", "Save"},
    {"frmImage", "cmdPrint", "Print"},
    {"frmImage", "cmdView", "View"},
    {"frmSize", "optWeb", "Web size -  500px * 750px   (for email, Facebook, etc)"},
    {"frmSize", "optCustom", "Custom size"},
    {"frmSize", "lblSize", "Number of pixels on long side:"},
    {"frmSize", "chkRecipe", "Keep a .flurn file beside it, to open this flurn again"},
    {"frmSize", "cmdOk", "Ok"},
    {"frmSize", "cmdCancel", "Cancel"},
    {"frmSize", "cmdHelp", "Help"},
    {"frmRecent", "lblEmpty", "No flurn yet: each one that you make is listed here."},
    {"frmRecent", "cmdHelp", "Help"},
    {"frmRecent", "cmdFile", "Open file..."},
    {"frmRecent", "cmdRemove", "Remove from list"},
    {"frmRecent", "cmdOk", "Open"},
    {"frmRecent", "cmdCancel", "Cancel"},
    {"frmFont", "chkBold", "Bold"},
    {"frmFont", "chkItalic", "Italic"},
    {"frmFont", "chkUnderline", "Underline"},
    {"frmFont", "cmdColor", "Color"},
    {"frmFont", "cmdOk", "Ok"},
    {"frmFont", "cmdCancel", "Cancel"},
    {"frmFont", "cmdHelp", "Help"},
    {"frmMatrix", "frmShake", "  Shake the Design  "},
    {"frmMatrix", "chkFrames", "Use custom frame set"},
    {"frmLettering", "optAlign", "Align the letters"},
    {"frmLettering", "optOffset", "Offset the letters"},
    {"frmLettering", "optSerpent", "Serpentine"},
    {"frmLettering", "frmAlphabet", "  A l p h a b e t  "},
    {"frmLettering", "optRounded", "Rounded"},
    {"frmLettering", "optSturdy", "Sturdy"},
    {"frmLettering", "optSerif", "Serif"},
    {"frmLettering", "chkOverlap", "Overlap the letters"},
    {"frmLettering", "chkCenter", "Center each line"},
    {"frmPuzzle", "lblRows", "Number of rows"},
    {"frmPuzzle", "lblColumns", "Number of columns"},
    {"frmPuzzle", "chkBest", "Set for best row/column fit"},
    {"frmPuzzle", "chkEdges", "Include straight edge pieces"},
    {"frmPuzzle", "lblBlanks", "Number of missing pieces"},
    {"frmPuzzle", "optOne", "One puzzle piece per photo"},
    {"frmPuzzle", "optFour", "Four puzzle pieces per photo"},
};

constexpr text_of_control titles[] = {
    {"frmThemes", "", "F l u r n   D e s i g n s"},
    {"frmMatrix", "", "M a t r i x   F l u r n"},
    {"frmLettering", "", "L e t t e r i n g   F l u r n"},
    {"frmPuzzle", "", "P u z z l e   F l u r n"},
    {"frmSelectPhotos", "", "S e l e c t   P h o t o s"},
    {"frmPhotoList", "", "S e l e c t e d   p h o t o s"},
    {"frmPhotoCnt", "", "Photo Count"},
    {"frmPictures", "", "Photo selection"},
    {"frmPictureList", "", "P h o t o   L i s t"},
    {"frmNewDesign", "", "N e w   D e s i g n"},
    {"frmDesigns", "", "D e s i g n s"},
    {"frmPictureName", "", "P h o t o   L i s t   N a m e"},
    {"frmCustom", "", "S e l e c t   F r a m e   S e t"},
    {"frmFrameName", "", "F r a m e   S e t   N a m e"},
    {"frmFrames", "", "C u s t o m   F r a m e s"},
    {"frmCaptions", "", "C u s t o m   F r a m e   C a p t i o n s"},
    {"frmIconName", "", "I c o n   N a m e"},
    {"frmCaptionText", "", "C o l l a g e   C a p t i o n"},
    {"frmSize", "", "Collage Size"},
    {"frmRecent", "", "R e c e n t   F l u r n s"},
    {"frmFont", "", "Fonts available"},
};

QString without_mnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QString text_of(const QObject & found)
{
    if (const auto * const widget = qobject_cast<const QAbstractButton *>(&found))
        return widget->text();
    if (const auto * const label = qobject_cast<const QLabel *>(&found))
        return label->text();
    if (const auto * const box = qobject_cast<const QGroupBox *>(&found))
        return box->title();
    if (const auto * const menu = qobject_cast<const QMenu *>(&found))
        return menu->title();
    const auto * const entry = qobject_cast<const QAction *>(&found);
    return entry ? entry->text() : QString();
}

bool some_label_says(const QWidget & window, const QString & text)
{
    for (const QLabel * label : window.findChildren<QLabel *>())
        if (without_mnemonic(label->text()) == text)
            return true;
    return false;
}

// Every window bound to its form, none of them loaded.
struct bound_windows {
    bound_windows()
    {
        add(all.main);
        for (form * each : all.others())
            add(*each);
    }
    void add(form & each)
    {
        widgets.push_back(make_window(each.name()));
        bind(each, *widgets.back(), {});
    }
    QWidget & named(const char * name) const
    {
        for (const std::unique_ptr<QWidget> & each : widgets)
            if (each->objectName() == QLatin1String(name))
                return *each;
        throw std::out_of_range(name);
    }

    scripted_desktop desk;
    windows all{desk, seeded_random(7)};
    std::vector<std::unique_ptr<QWidget>> widgets;
};

}  // namespace

TEST(control_texts, stand_in_every_window_as_they_are_meant)
{
    const bound_windows shown;
    for (const auto & [window, control, text] : texts) {
        const QWidget & its_window = shown.named(window);
        if (!*control) {
            EXPECT_TRUE(some_label_says(its_window, text)) << window << ": " << text;
            continue;
        }
        const QObject * const found = its_window.findChild<QObject *>(QLatin1String(control));
        ASSERT_NE(found, nullptr) << window << ": " << control;
        EXPECT_EQ(without_mnemonic(text_of(*found)).toStdString(), text) << window << ": " << control;
    }
}

TEST(control_texts, stand_in_the_titles)
{
    const bound_windows shown;
    for (const auto & [window, unused, text] : titles)
        EXPECT_EQ(shown.named(window).windowTitle().toStdString(), text);
}
