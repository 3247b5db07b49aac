#include "session/start_designed.h"

#include "photos/chosen_photos.h"
#include "session/new_poster.h"
#include "session/start/start_up.h"
#include "session/window_state.h"

namespace {

void apply_design_to_photos(frmMain & main)
{
    count_with_progress(main);
    main.lblOutput.set_caption("");
    main.chkRounded.tick(false);
    main.cmdMore.show(false);
    main.optBlock.select(false);
    new_poster(main);
    main.picSample.show(false);
}

}  // namespace

void start_designed(frmMain & main, const std::function<void()> & choose_photos)
{
    {
        const updating quiet(main);
        start_enable_true(main);
        clear_matrix_design(main);
        main.collage.random_design = true;
        main.chkMatch.enable(true);
        main.picSample.show(false);
        fire(choose_photos);
        main.collage.quick_active = false;
        main.optSample.show(true);
        if (photo_source_kind(main) != photo_source::none && !main.photo_choice_cancelled)
            apply_design_to_photos(main);
        if (main.design_record.quick_shape == "Yes" || main.design_record.design == "Saved")
            main.frmOrnaments.show(false);
        main.optPreview.select(false);  // still on from another collage, its click would not come
    }
    main.optPreview.select();
}
