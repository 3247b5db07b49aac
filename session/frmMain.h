#pragma once

#include "designers/lettering/lettering_choices.h"
#include "designs/catalogue/catalogue_state.h"
#include "designs/catalogue/design_record.h"
#include "designs/catalogue/finished_flurn.h"
#include "designs/templates/location.h"
#include "designs/templates/poster_shape.h"
#include "engine/photo/rotation_files.h"
#include "engine/run_state.h"
#include "photos/left_out_photos.h"
#include "photos/lists/photo_table.h"
#include "photos/thumbnails/thumbnails_ahead.h"
#include "quick/quick_state.h"
#include "recipes/recipe_memory.h"
#include "session/collage.h"
#include "support/desktop.h"
#include "support/files/folder_lock.h"
#include "support/for_now.h"
#include "support/list_controls.h"
#include "support/random.h"
#include "support/workers.h"

#include <array>
#include <memory>
#include <optional>
#include <string>

struct windows;
class prepared_shelf;

/// What `set_enable` remembers between its calls.
struct enable_memory {
    bool last = true;
    std::array<bool, 9> groups{};
    bool shadow_usable = false;  ///< shadows may be drawn in the run that is going on
    bool shadow_fixed = false;   ///< `cmbShadow` was enabled when the run began
};

/// What the image window was opened for.
enum class image_face { finished, viewed, sample };

/// The one window of the session. Its controls are the settings of the collage: the engine reads them at the
/// moment it needs them, and there is no second copy. What controls can't hold travels in the public fields
/// below them.
struct frmMain : form {
    /// `all_windows` is where the other windows are found; without it none can be opened.
    frmMain(desktop & shown_on, random_source chance, windows * all_windows = nullptr);

    desktop & desk;
    random_source random;
    worker_pool workers;
    windows * all;

    // Menu bar.
    menu_entry mnuFile{*this, "mnuFile", "&File"};
    menu_entry mnuRecent{*this, "mnuRecent", "Recent flurns"};
    menu_entry mnuQuit{*this, "mnuQuit", "Quit"};
    menu_entry mnuQuick{*this, "mnuQuick", " &Quick flurn"};
    menu_entry mnuDesigned{*this, "mnuDesigned", " Designed flurn"};
    menu_entry mnuMatrix{*this, "mnuMatrix", " Matrix flurn"};
    menu_entry mnuLettering{*this, "mnuLettering", "Lettering flurn"};
    menu_entry mnuPuzzle{*this, "mnuPuzzle", "Puzzle flurn"};
    menu_entry mnuSeparator{*this, "mnuSeparator", " || "};
    menu_entry mnuDesign{*this, "mnuDesign", " Designs"};
    menu_entry mnuImport{*this, "mnuImport", "Import design"};
    menu_entry mnuEditDesigns{*this, "mnuEditDesigns", "Edit designs"};
    menu_entry mnuSaveDesign{*this, "mnuSaveDesign", "Save last Flurn"};
    menu_entry mnuPictures{*this, "mnuPictures", " Photos"};
    menu_entry mnuSaveLast{*this, "mnuSaveLast", "Save last photo list"};
    menu_entry mnuNewList{*this, "mnuNewList", "Add new photo list"};
    menu_entry mnuEditSelections{*this, "mnuEditSelections", "Edit photo list"};
    menu_entry mnuFrames{*this, "mnuFrames", " Frames"};
    menu_entry mnuNewFrame{*this, "mnuNewFrame", "New custom frame"};
    menu_entry mnuEditFrame{*this, "mnuEditFrame", "Edit frames"};
    menu_entry mnuIcon{*this, "mnuIcon", "Import icon"};
    menu_entry mnuHelp{*this, "mnuHelp", " Help"};
    menu_entry mnuHelpTopics{*this, "mnuHelpTopics", "Help topics"};
    menu_entry mnuStarted{*this, "mnuStarted", "Tutorials"};
    menu_entry mnuFAQ{*this, "mnuFAQ", "FAQ"};
    menu_entry mnuHelpAbout{*this, "mnuHelpAbout", "About Flurns"};

    // In no bar, which is hidden while there is something to undo: at the preview, and by their keys.
    menu_entry mnuChanges{*this, "mnuChanges"};
    menu_entry mnuUndo{*this, "mnuUndo", "Undo"};
    menu_entry mnuRedo{*this, "mnuRedo", "Redo"};

    // Photos and design of the collage.
    group frmOutput{*this, "frmOutput"};
    label lblTemplate{*this, "lblTemplate", "Design:"};
    label lblDesign{*this, "lblDesign"};     ///< tag: section or name given by the last chooser
    label lblPhotos{*this, "lblPhotos"};     ///< tag: photo_source_kind
    text_box txtPhotos{*this, "txtPhotos"};  ///< tag: photo_list_path
    label lblOutput{*this, "lblOutput"};
    label lblBlanks{*this, "lblBlanks", "Blanks:"};
    combo_box cmbBlanks{*this, "cmbBlanks"};
    button cmdMore{*this, "cmdMore", "More photos"};  ///< tag: "fewer" or empty
    button cmdShuffle{*this, "cmdShuffle", "Shuffle Photos"};
    button cmdPhotos{*this, "cmdPhotos", "Change Photos"};
    check_box chkMatch{*this, "chkMatch", "Match"};
    check_box chkRandom{*this, "chkRandom", "Random"};
    check_box chkEvolve{*this, "chkEvolve", "Evolve"};

    // These four share one place.
    group frmShake{*this, "frmShake", "  Shake the Design  "};
    check_box chkResize{*this, "chkResize", "Resize photos"};
    check_box chkRotate{*this, "chkRotate", "Rotate photos"};
    check_box chkShuffle{*this, "chkShuffle", "Shuffle design"};
    group frmSpace{*this, "frmSpace"};
    check_box chkMix{*this, "chkMix", "Mix it up"};
    label lblBorder{*this, "lblBorder", "Spacing:"};
    combo_box cmbSpace{*this, "cmbSpace"};
    group frmAlign{*this, "frmAlign"};
    label lblAlign{*this, "lblAlign", "Align:"};
    option_set align_options;
    option_button optAlignTop{*this, "optAlignTop", align_options, "Top"};
    option_button optAlignCenter{*this, "optAlignCenter", align_options, "Center"};
    option_button optAlignBottom{*this, "optAlignBottom", align_options, "Bottom"};
    group frmSquares{*this, "frmSquares"};
    button cmdRowUp{*this, "cmdRowUp", "+"};
    button cmdRowDown{*this, "cmdRowDown", "-"};
    button cmdColUp{*this, "cmdColUp", "+"};
    button cmdColDown{*this, "cmdColDown", "-"};
    label lblRows{*this, "lblRows", "Rows"};
    label lblCols{*this, "lblCols", "Columns"};

    group frmOrientation{*this, "frmOrientation", "   O r i e n t a t i o n   "};
    option_set orientation_options;
    option_button optPortrait{*this, "optPortrait", orientation_options, "Portrait"};
    option_button optLandscape{*this, "optLandscape", orientation_options, "Landscape"};
    option_button optSquare{*this, "optSquare", orientation_options, "Square"};

    group frmStyle{*this, "frmStyle", "  Q u i c k   S t y l e   "};
    option_set style_options;
    option_button optBlock{*this, "optBlock", style_options, "Block"};
    option_button optScatter{*this, "optScatter", style_options, "Scattered"};
    option_button optMatrix{*this, "optMatrix", style_options, "Matrix"};
    option_button optShapes{*this, "optShapes", style_options, "Shapes"};
    entry_box cmbShapes{*this, "cmbShapes"};

    group frmOrnaments{*this, "frmOrnaments", "   F r a m e   S t y l e   "};
    check_box chkRounded{*this, "chkRounded", "Rounded"};
    check_box chkCaption{*this, "chkCaption", "Captions"};  ///< tag: "Skip" while chkSoftEdge unticks it
    check_box chkSoftEdge{*this, "chkSoftEdge", "Soft"};    ///< tag: "Skip" while chkCaption unticks it
    group frmHideOrnaments{*this, "frmHideOrnaments"};
    label lblFrame{*this, "lblFrame", "Frame size:"};
    combo_box cmbFrame{*this, "cmbFrame"};
    button cmdFrameColor{*this, "cmdFrameColor", "Frame Color"};
    picture picFrameColor{*this, "picFrameColor"};  ///< tag: "True" or "False", whether a frame may be chosen
    label lblShadow{*this, "lblShadow", "Shadow size:"};
    combo_box cmbShadow{*this, "cmbShadow"};
    button cmdShadowColor{*this, "cmdShadowColor", "Shadow Color"};
    picture picShadowColor{*this, "picShadowColor"};

    group frmBackground{*this, "frmBackground", "   B a c k g r o u n d    "};
    option_set background_options;
    option_button optSolid{*this, "optSolid", background_options, "Solid color"};
    option_button optBGimage{*this, "optBGimage", background_options, "Photo"};
    button cmdBGcolor{*this, "cmdBGcolor", "Color"};
    picture picBGcolor{*this, "picBGcolor"};
    button cmdBGimage{*this, "cmdBGimage", "Browse"};
    text_box txtBGimage{*this, "txtBGimage"};
    group frmBlend{*this, "frmBlend"};
    label lblBlend{*this, "lblBlend", "Percent blend:"};
    combo_box cmbBlend{*this, "cmbBlend"};

    group frmBorder{*this, "frmBorder", "   B o r d e r   S i z e   "};
    option_set border_options;
    option_button optNone{*this, "optNone", border_options, "None"};
    option_button optTiny{*this, "optTiny", border_options, "Tiny"};
    option_button optSmall{*this, "optSmall", border_options, "Small"};
    option_button optMedium{*this, "optMedium", border_options, "Medium"};
    option_button optLarge{*this, "optLarge", border_options, "Large"};
    option_button optHuge{*this, "optHuge", border_options, "Huge"};
    check_box chkOutline{*this, "chkOutline", "Outline the photos"};  ///< tag: "skip" in refresh_after_change

    group frmCaption{*this, "frmCaption", "   C o l l a g e   C a p t i o n   "};
    text_box txtCaption{*this, "txtCaption"};  ///< tag: the caption's size on the collage, in points
    option_set caption_options;
    option_button optTop{*this, "optTop", caption_options, "Caption top"};
    option_button optBottom{*this, "optBottom", caption_options, "Caption bottom"};
    check_box chkClear{*this, "chkClear", "Cleared caption"};
    button cmdFont{*this, "cmdFont", "Font"};
    label lblFont{*this, "lblFont"};
    label lblFontSize{*this, "lblFontSize", "Font Size:"};
    combo_box cmbSize{*this, "cmbSize"};

    group frmDisplay{*this, "frmDisplay"};
    option_set display_options;
    option_button optPreview{*this, "optPreview", display_options, "Preview On"};
    option_button optSample{*this, "optSample", display_options, "Preview Off"};

    group frmButtons{*this, "frmButtons"};
    button cmdFlurn{*this, "cmdFlurn", "Flurn"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};
    text_box txtDoing{*this, "txtDoing"};
    progress_bar barDoing{*this, "barDoing"};

    picture picSample{*this, "picSample"};
    picture picSplash{*this, "picSplash"};

    // Folders, without a separator at their end.
    std::string data_folder, install_folder;
    std::string
        work_folder;  ///< for the session's own files; empty: the data folder, which is the session's alone
    folder_lock data_lock;                   ///< held as long as the data folder is this session's
    std::string pictures_folder;             ///< the user's own, set by the program
    std::string image_folder, photo_folder;  ///< where the choosers last were

    ::collage collage;  ///< which collage this is

    // The design and its template.
    catalogue_state catalogue;
    ::design_record design_record;  ///< the current section of the catalogue
    location_table design_locations, scratch_locations;
    std::string work_style;         ///< "Style=" of this run, "Matrix" turned into "Fill"
    int16 min_location = 100;       ///< smallest side of all locations, at most 100
    bool poster_tall = false;       ///< portrait and square
    std::string matrix_size;        ///< rows and columns of the last one, "2x3"
    lettering_choices lettering{};  ///< as its designer was left
    bool square_background = false, run_landscape = false;  ///< shape of the last full-size run
    finished_flurn last_flurn;
    recipe_memory recipes;
    bool matrix_portrait = true;     ///< the poster of the matrix designer
    bool frame_manage_mode = false;  ///< frame sets are managed, not chosen from
    std::string icon_path;           ///< the picture that is to become an icon
    int16 next_design_number = 0;

    // The photos.
    photo_table table;
    left_out_photos left_out;
    thumbnails_ahead thumbnails;
    std::shared_ptr<prepared_shelf> copies{};  ///< of photos, in use while the session lasts
    int16 selected_count = 0;                  ///< photos written to the working list so far
    std::string working_list_path;             ///< the list that a selection is gathered in
    bool photo_list_edit_mode = false;         ///< saved lists are managed, not chosen from
    bool photo_choice_cancelled = false;

    // The run and the picture it makes.
    run_state run;
    rotation_files tilting;  ///< for the tilted photos of this and later runs
    int16 collage_width = 2000, collage_height = 3000;
    int16 shake_start = -1, mix_step = -1;
    std::string save_image_path, image_to_show;
    image_face shown_as = image_face::finished;  ///< to be set before the image window is opened

    // Guards and memories of the window itself.
    bool menus_shown = true;
    bool quit_requested = false;
    bool in_preview = false;
    bool updating_controls = false;
    bool preview_blocked = false;
    bool skip_preview_click = false;
    quick_state quick;
    double shape_row_bias = 0, shape_column_bias = 0;  ///< added by the row and column buttons
    double shape_rows = 0, shape_columns = 0;          ///< the counts shown beside them
    poster_shape shape_in_force = poster_shape::portrait;
    bool bg_portrait = true;
    std::uint32_t bg_color = 0, caption_color = 0;
    /// While a background is being typed the preview waits: the text it was drawn for. Nothing: it doesn't
    /// wait.
    std::optional<std::string> drawn_background;
    bool font_extended = false;  ///< the font window offers size and colour as well
    std::string font_size_text;  ///< size that the font window gave, empty after a cancel
    std::string last_frame_size;
    enable_memory enabling;
    std::string trace;  ///< how far the session came; only the error boxes show it
};

/// Keeps the handlers quiet while it lives: a failed step can't deafen the window.
class updating {
public:
    explicit updating(frmMain & window) : flag(window.updating_controls, true) {}

private:
    for_now<bool> flag;
};

/// The path of a file or folder that belongs to the session and not to the user's data: `tmp`, templates that
/// start with two underscores, the list of a selection, and the catalogue as the session reads it.
std::string work_path(const frmMain & main, std::string_view name);

/// The picture that was made last, a preview or a full-size collage.
std::string finished_path(const frmMain & main);

/// True when the data folder is this session's alone, so that it may write there.
bool owns_data_folder(const frmMain & main);

/// Kind of the photo source, kept in the tag of `lblPhotos`.
photo_source photo_source_kind(const frmMain & main);
void set_photo_source_kind(frmMain & main, photo_source kind);

/// The value of a list or tag as the session reads it: its leading number.
double number_in(const combo_box & list);
