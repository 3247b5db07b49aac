#include "photos/lists/frmPhotoList.h"

#include "photos/lists/photo_list.h"
#include "photos/lists/working_list.h"
#include "session/windows.h"

// A selection is gathered.

namespace {

void load_photo_list(windows & all)
{
    show_selected_count(all);
    all.photo_list.txtCounting.show(false);
}

void cmdPhotos_click(windows & all)
{
    get_selected_photos(all.main);
    show_selected_count(all);
}

void cmdFolder_click(windows & all)
{
    folder_of_photos(all.main);
    show_selected_count(all);
}

void cmdClear_click(windows & all)
{
    clear_working_list(all.main);
    show_selected_count(all);
}

void cmdEdit_click(windows & all)
{
    all.pictures.edit_mode = editing::selection;
    all.pictures.edit_list_path = all.main.working_list_path;
    all.photo_list.txtCounting.set_caption("");
    all.photo_list.txtCounting.show(true);
    all.main.desk.show_modal(all.pictures);
    all.photo_list.txtCounting.show(false);
    show_selected_count(all);
}

void cmdDone_click(windows & all)
{
    if (all.main.selected_count >= 1) {
        all.main.txtPhotos.tag = all.main.working_list_path;
        all.main.cmdPhotos.tag = std::to_string(all.main.selected_count);
    }
    all.photo_list.result = all.main.selected_count;
    all.photo_list.unload();
}

}  // namespace

void show_selected_count(windows & all)
{
    const int selected = all.main.selected_count;
    const bool editable = selected > 0 && selected <= editable_photos;
    all.photo_list.lblCount.set_caption("Number of photos selected:   " + std::to_string(selected));
    all.photo_list.cmdEdit.show(editable);
    all.photo_list.txtEdit.show(editable);
}

void connect_frmPhotoList(windows & all)
{
    frmPhotoList & window = all.photo_list;
    window.on_load = [&all] { load_photo_list(all); };
    window.cmdFolder.on_click = [&all] { cmdFolder_click(all); };
    window.cmdPhotos.on_click = [&all] { cmdPhotos_click(all); };
    window.cmdClear.on_click = [&all] { cmdClear_click(all); };
    window.cmdEdit.on_click = [&all] { cmdEdit_click(all); };
    window.cmdDone.on_click = [&all] { cmdDone_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
    window.on_query_unload = [&all] { return !all.pictures.loaded(); };  // its photos are being checked
}
