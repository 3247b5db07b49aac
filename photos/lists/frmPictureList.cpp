#include "photos/lists/frmPictureList.h"

#include "photos/lists/saved_lists.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/windows/list_faces.h"

// The saved lists, to choose one or to manage them.

namespace {

list_buttons buttons_of(frmPictureList & window)
{
    return {.done = window.cmdDone, .erase = window.cmdDelete, .edit = window.cmdEdit};
}

void load_picture_list(windows & all)
{
    start_photo_list(all.main);
    all.picture_list.txtCounting.show(false);
    if (all.main.photo_list_edit_mode)
        show_manager_face(buttons_of(all.picture_list));
    else
        show_chooser_face(buttons_of(all.picture_list));
}

std::string selected_list(const windows & all)
{
    return saved_list_path(all.main, all.picture_list.lstPictures.text());
}

void choose_selected(windows & all)
{
    all.picture_list.result = all.main.txtPhotos.tag = selected_list(all);
    all.picture_list.unload();
}

void close_without_choice(windows & all)
{
    all.main.txtPhotos.tag.clear();
    all.picture_list.unload();
}

// The list that was edited stays selected, even if new ones came in front of it.
void cmdEdit_click(windows & all)
{
    frmPictureList & window = all.picture_list;
    if (window.lstPictures.list_index() < 0)
        return;
    const std::string edited = window.lstPictures.text();
    all.pictures.edit_mode = editing::saved_list;
    all.pictures.edit_list_path = selected_list(all);
    window.txtCounting.set_caption("");
    window.txtCounting.show(true);
    all.main.desk.show_modal(all.pictures);
    window.txtCounting.show(false);
    start_photo_list(all.main);
    window.lstPictures.select_text(edited);
}

void delete_selected(windows & all)
{
    frmPictureList & window = all.picture_list;
    if (window.lstPictures.list_index() < 0)
        return;
    delete_file(selected_list(all));
    window.lstPictures.remove_item(window.lstPictures.list_index());
    forbid_changes(buttons_of(window));
}

void cmdDelete_click(windows & all)
{
    if (all.main.photo_list_edit_mode)
        delete_selected(all);
    else
        close_without_choice(all);
}

void cmdDone_click(windows & all)
{
    if (all.main.photo_list_edit_mode)
        all.picture_list.unload();
    else if (all.picture_list.lstPictures.list_index() >= 0)
        choose_selected(all);
}

void lstPictures_double_click(windows & all)
{
    if (all.main.photo_list_edit_mode)
        cmdEdit_click(all);
    else
        choose_selected(all);
}

bool may_close(windows & all)
{
    if (all.pictures.loaded())
        return false;  // its photos are being checked
    if (!all.main.photo_list_edit_mode)
        all.main.txtPhotos.tag.clear();
    return true;
}

}  // namespace

void connect_frmPictureList(windows & all)
{
    frmPictureList & window = all.picture_list;
    window.on_load = [&all] { load_picture_list(all); };
    window.lstPictures.on_click = [&window] { allow_all(buttons_of(window)); };
    window.lstPictures.on_double_click = [&all] { lstPictures_double_click(all); };
    window.cmdDone.on_click = [&all] { cmdDone_click(all); };
    window.cmdDelete.on_click = [&all] { cmdDelete_click(all); };
    window.cmdEdit.on_click = [&all] { cmdEdit_click(all); };
    window.on_query_unload = [&all] { return may_close(all); };
}
