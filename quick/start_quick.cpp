#include "quick/start_quick.h"

#include "designs/catalogue/catalogue.h"
#include "photos/chosen_photos.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"
#include "quick/no_template.h"
#include "quick/photo_note.h"
#include "quick/quick_match.h"
#include "session/begin_collage.h"
#include "session/main_window/redraw.h"
#include "session/new_poster.h"
#include "session/window_state.h"
#include "session/windows.h"
#include "support/colors.h"

namespace {

constexpr int fewest_photos = 3;

void forget_last_collage(frmMain & main)
{
    begin_collage(main, collage_kind::quick);
    main.picSplash.show(false);
    main.photo_choice_cancelled = false;
}

// A folder is in the table when its chooser closes; lists and selections are read here.
bool photos_chosen(frmMain & main, const std::function<void()> & choose_photos)
{
    fire(choose_photos);
    if (main.txtPhotos.tag.empty() || main.photo_choice_cancelled)
        return false;
    if (photo_source_kind(main) == photo_source::selection && main.selected_count < 1) {
        main.txtPhotos.tag.clear();
        return false;
    }
    if (photo_source_kind(main) != photo_source::folder)
        get_photos(main);
    return true;
}

// A design that forbade the plain background, or brought its own picture, has no say here.
void free_background(frmMain & main)
{
    if (main.optSolid.enabled())
        return;
    const updating quiet(main);
    main.optSolid.enable(true);
    main.optSolid.select();
    main.txtBGimage.show(false);
    main.design_record.bg_image.clear();
}

void take_design_of_quick_styles(frmMain & main)
{
    if (!find_design(main, "Match"))
        main.desk.message("should not happen 2 ?");
    main.chkClear.enable(true);
    main.optSample.show(true);
    free_background(main);
}

void count_for_quick_styles(frmMain & main)
{
    count_with_progress(main);
    main.lblOutput.set_caption("");
    note_photos(main);
    main.cmbShapes.show(false);
    main.chkMix.show(false);
    main.design_record.file = "__quick";
}

std::string too_few_message(photo_source kind, int photos)
{
    const std::string count = std::to_string(photos);
    const std::string none = "No templates are available for  " + count + "  photos.";
    if (kind == photo_source::folder)
        return "There are only  " + count + "  photos in that folder.\r\n" + none +
               "\r\n\r\nPlease choose another folder.";
    if (kind == photo_source::list)
        return "That photo list contains only  " + count + "  photos.\r\n" + none;
    return none;
}

// Only a folder that turns out to be empty is news to the user.
bool are_enough(frmMain & main)
{
    const photo_source kind = photo_source_kind(main);
    const int photos = main.table.last_photo + 1;
    if (photos >= fewest_photos)
        return has_usable_photo(main);  // the count has told why there is none
    if (photos > 0)
        main.desk.message(too_few_message(kind, photos));
    else if (kind == photo_source::folder)
        main.desk.message("There are no photos in that folder.");
    return false;
}

void prepare_controls(frmMain & main)
{
    main.cmdMore.show(false);
    main.cmdMore.set_caption("Fewer photos");
    main.cmdMore.tag.clear();
    main.collage.quick_active = true;
    main.lblBlanks.show(true);
    main.cmbBlanks.show(false);  // while it is hidden its change is no wish for a preview
    main.cmbBlanks.set_text("0");
    main.cmbBlanks.show(true);
}

void settle_controls(frmMain & main)
{
    main.frmBorder.enable(true);
    for (option_button * each : main.border_options)
        each->enable(true);
    main.frmAlign.show(false);
    main.chkOutline.show(false);
    main.frmSquares.show(false);
    main.cmdShuffle.enable(true);
    main.lblDesign.set_caption(main.optBlock.selected() ? "Quick Block" : "Quick Scatter");
}

// Its click runs even when it is the one already selected.
void select_anew(option_button & option)
{
    option.select(false);
    option.select();
}

bool select_first_style(frmMain & main)
{
    main.design_record.design = "Block";
    count_slots(main);
    if (main.quick.photos_portrait + main.quick.photos_landscape >= fewest_photos) {
        select_anew(main.optBlock);
        return true;
    }
    select_anew(main.optScatter);
    return find_scatter_match(main);
}

void clear_matrix_switches(frmMain & main)
{
    main.collage.matrix_both = main.collage.matrix_resize = main.collage.matrix_rotate = false;
    main.poster_tall = main.in_preview = true;
    main.lblDesign.tag = "Match";
}

void enter_poster(frmMain & main)
{
    main.picSplash.show(false);
    main.set_back_color(about_background);
    new_poster(main);
    if (main.optScatter.selected()) {
        main.chkCaption.enable(true);
        main.chkRounded.enable(false);
    }
    main.frmSpace.show(main.optBlock.selected());
    for (group * each : {&main.frmShake, &main.frmAlign, &main.frmSquares})
        each->show(false);
    main.chkOutline.show(false);
    main.picSample.show(false);
}

}  // namespace

bool start_quick(frmMain & main)
{
    {
        const updating quiet(main);
        clear_matrix_switches(main);
        main.optPortrait.select();
        if (!select_first_style(main))
            return false;
        enter_poster(main);
        main.preview_blocked = main.skip_preview_click = false;
        main.optPreview.select();
        main.frmOrnaments.show(true);
        main.frmOrnaments.enable(true);
    }
    refresh_preview(main);
    return true;
}

bool begin_quick(frmMain & main, const std::function<void()> & choose_photos)
{
    forget_last_collage(main);
    if (!photos_chosen(main, choose_photos))
        return false;
    start_enable_true(main);
    take_design_of_quick_styles(main);
    count_for_quick_styles(main);
    if (!are_enough(main))
        return false;
    main.run.photos_shown.clear();
    note_photos_in_use(main);
    prepare_controls(main);
    const bool started = start_quick(main);
    if (started)
        settle_controls(main);
    else
        tell_no_template(main, scatter_caller);
    main.collage.quick_active = started;
    return started;
}

void take_new_photos(frmMain & main)
{
    note_photos(main);
    if (!main.collage.quick_active)
        return refresh_preview(main);
    main.run.photos_shown.clear();
    note_photos_in_use(main);
    if (!has_usable_photo(main))
        return refresh_preview(main);  // no template is wanting
    const bool block = main.optBlock.selected();
    if ((block || main.optScatter.selected()) && !match_quick_style(main) &&
        block == main.optBlock.selected())
        return tell_no_template(main, block ? block_caller : scatter_caller);
    // Where scatter was selected instead it has drawn itself.
    if (block == main.optBlock.selected())
        refresh_preview(main);
}
