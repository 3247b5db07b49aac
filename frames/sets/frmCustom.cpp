#include "frames/sets/frmCustom.h"

#include "frames/sets/frame_sets.h"
#include "session/windows.h"
#include "support/windows/list_faces.h"

// The frame sets, to choose one or to manage them.

namespace {

// In 1/15 pixel.
constexpr int manager_width = 5340, chooser_width = 4000, both_height = 6300;

list_buttons buttons_of(frmCustom & window)
{
    return {.done = window.cmdDone, .erase = window.cmdDelete, .edit = window.cmdEdit};
}

void load_custom(windows & all)
{
    frmCustom & window = all.custom;
    start_custom_frames(all.main);
    if (all.main.frame_manage_mode) {
        window.set_caption("M a n a g e   C u s t o m   F r a m e s");
        show_manager_face(buttons_of(window));
        window.resize(manager_width, both_height);
    } else {
        window.set_caption("S e l e c t   F r a m e   S e t");
        show_chooser_face(buttons_of(window));
        window.resize(chooser_width, both_height);
    }
}

void edit_selected(windows & all)
{
    if (all.custom.lstFrames.list_index() < 0)
        return;
    all.custom.edit_frame_name = all.custom.lstFrames.text();
    all.main.desk.show_modal(all.frames);
    all.custom.unload();
}

void take_selected(windows & all)
{
    if (all.custom.lstFrames.list_index() < 0)
        return;
    all.custom.result = all.custom.lstFrames.text();
    all.custom.unload();
}

// At once, with no question: the manager is the place where sets end.
void delete_selected(windows & all)
{
    list_box & sets = all.custom.lstFrames;
    if (sets.list_index() < 0)
        return;
    delete_frame_set(all.main, sets.text());
    sets.remove_item(sets.list_index());
    forbid_changes(buttons_of(all.custom));
}

void cmdDone_click(windows & all)
{
    if (!all.main.frame_manage_mode)
        take_selected(all);
    else
        all.custom.unload();
    all.main.frame_manage_mode = false;
}

void cmdDelete_click(windows & all)
{
    if (all.main.frame_manage_mode)
        delete_selected(all);
    else
        all.custom.unload();
}

void lstFrames_double_click(windows & all)
{
    if (all.main.frame_manage_mode)
        edit_selected(all);
    else
        take_selected(all);
}

}  // namespace

void connect_frmCustom(windows & all)
{
    frmCustom & window = all.custom;
    window.on_load = [&all] { load_custom(all); };
    window.lstFrames.on_click = [&window] { allow_all(buttons_of(window)); };
    window.lstFrames.on_double_click = [&all] { lstFrames_double_click(all); };
    window.cmdDone.on_click = [&all] { cmdDone_click(all); };
    window.cmdDelete.on_click = [&all] { cmdDelete_click(all); };
    window.cmdEdit.on_click = [&all] { edit_selected(all); };
}
