#include "photos/photo_list.h"
#include "session/new_poster.h"
#include "session/start_up.h"
#include "session/window_state.h"
#include "session/windows.h"

namespace {

// A window that is up while it lives.
class shown {
public:
    shown(desktop & shown_on, form & opened) : desk(shown_on), window(opened) { desk.show(window); }
    shown(const shown &) = delete;
    shown & operator=(const shown &) = delete;
    ~shown() { desk.hide(window); }

private:
    desktop & desk;
    form & window;
};

// The counting with its small window and the busy pointer.
void count_with_progress(frmMain & main)
{
    const busy pointer(main.desk);
    const shown progress(main.desk, main.all->photo_count);
    count_photos(main);
}

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

void start_designed(frmMain & main)
{
    {
        const updating quiet(main);
        start_enable_true(main);
        clear_matrix_design(main);
        main.random_design = true;
        main.chkMatch.enable(true);
        main.picSample.show(false);
        main.quick_active = false;
        main.optSample.show(true);
        if (photo_source_kind(main) != photo_source::none && !main.photo_choice_cancelled)
            apply_design_to_photos(main);
        if (main.design_record.quick_shape == "Yes" || main.design_record.design == "Saved")
            main.frmOrnaments.show(false);
        main.optPreview.select(false);  // still on from another collage, its click would not come
    }
    main.optPreview.select();
}
