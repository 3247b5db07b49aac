#include "designers/start_designer.h"

#include "designers/work_template.h"
#include "designs/catalogue/catalogue.h"
#include "photos/chosen_photos.h"
#include "session/begin_collage.h"
#include "session/new_poster.h"
#include "session/start/start_up.h"
#include "session/window_state.h"
#include "session/windows.h"

namespace {

form & window_of(windows & all, designer chosen)
{
    switch (chosen) {
        case designer::matrix:
            return all.matrix;
        case designer::lettering:
            return all.lettering;
        default:
            return all.puzzle;
    }
}

collage_kind kind_of(designer chosen)
{
    if (chosen == designer::matrix)
        return collage_kind::matrix;
    return chosen == designer::lettering ? collage_kind::lettering : collage_kind::puzzle;
}

void prepare_stage(frmMain & main, designer chosen)
{
    begin_collage(main, kind_of(chosen));
    clear_stage(main);
    main.lblDesign.tag.clear();
    main.collage_width = 2000;
    main.collage_height = 3000;
    if (chosen == designer::matrix)
        clear_matrix_design(main);
}

bool design_found(frmMain & main)
{
    const bool found = find_design(main, main.lblDesign.tag);
    close_catalogue(main);
    if (!found)
        main.desk.message("should not happen 2 ?");
    return found;
}

bool photos_chosen(frmMain & main, const std::function<void()> & choose_photos)
{
    main.chkMatch.enable(true);
    main.chkMatch.show(true);
    main.photo_choice_cancelled = false;
    fire(choose_photos);
    return !main.txtPhotos.tag.empty() && !main.photo_choice_cancelled;
}

// Letters and pieces have none.
void untick_ornaments(frmMain & main, designer chosen)
{
    if (chosen != designer::matrix)
        for (check_box * ornament : {&main.chkRounded, &main.chkCaption, &main.chkSoftEdge})
            main.collage.forced.tick(*ornament, false);
}

void enter_poster(frmMain & main, designer chosen)
{
    const updating quiet(main);
    untick_ornaments(main, chosen);
    new_poster(main);
    main.picSample.show(false);
    main.frmSpace.show(false);
    main.optSample.show(true);
    if (chosen != designer::matrix)
        main.picFrameColor.tag = "False";  // the last frame size would frame the square around each piece
    if (chosen != designer::lettering) {
        main.collage.forced.select(main.border_options, main.optNone);
        main.frmBorder.enable(false);
    }
    main.chkOutline.show(chosen != designer::matrix);
    main.optPreview.select(false);  // still on from another collage, its click would not come
}

}  // namespace

void start_designer(frmMain & main, designer chosen, const std::function<void()> & choose_photos)
{
    prepare_stage(main, chosen);
    main.desk.show_modal(window_of(*main.all, chosen));
    start_enable_true(main);
    if (main.lblDesign.tag.empty() || !design_found(main))
        return;
    main.collage.matrix_session = chosen == designer::matrix;
    if (!photos_chosen(main, choose_photos)) {
        main.collage.matrix_session = false;
        return;
    }
    main.cmdMore.show(false);
    take_chosen_photos(main);
    main.lblOutput.set_caption("");
    enter_poster(main, chosen);
    main.optPreview.select();
}
