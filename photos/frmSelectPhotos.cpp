#include "photos/frmSelectPhotos.h"

#include "photos/chosen_photos.h"
#include "photos/lists/photo_list.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/for_now.h"

// Where the photos come from.

namespace {

// In pixels; the box stands under the option it belongs to.
constexpr int folder_left = 72, list_left = 102;

void show_box(frmSelectPhotos & window, int left)
{
    window.txtCards.move({.left = left});
    window.cmdCards.move({.left = left});
}

void show_box_controls(frmSelectPhotos & window, bool on)
{
    window.txtCards.show(on);
    window.cmdCards.show(on);
}

void show_current_choice(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    switch (photo_source_kind(all.main)) {
        case photo_source::none:
        case photo_source::folder:
            window.optFolder.select();
            show_box(window, folder_left);
            window.cmdOk.enable(photo_source_kind(all.main) == photo_source::folder);
            if (window.cmdOk.enabled())
                window.txtCards.set_text(all.main.txtPhotos.tag);
            break;
        case photo_source::list:
            window.optList.select();
            show_box(window, list_left);
            window.txtCards.set_text(all.main.txtPhotos.text());
            break;
        default:
            window.optUnseen.select();
            window.skip_next_click = false;
            show_box_controls(window, false);
            window.cmdCards.enable(false);
    }
}

void load_select_photos(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    for (option_button * each : window.options)
        each->select(false);
    window.optUnseen.show(false);
    window.txtCards.set_text("");
    window.skip_next_click = true;
    window.cmdCards.enable(true);
    show_box_controls(window, true);
    window.cmdOk.enable(true);
    window.saved_last_photo = all.main.table.last_photo;
    window.saved_list_path = all.main.txtPhotos.tag;
    show_current_choice(all);
    window.optChange.show(all.main.selected_count > 0);
}

// A choice that came about after an attempt that was cancelled counts all the same.
void close_with(windows & all, photo_source kind, const std::string & caption, const std::string & text)
{
    set_photo_source_kind(all.main, kind);
    all.main.lblPhotos.set_caption(caption);
    all.main.txtPhotos.set_text(text);
    all.main.photo_choice_cancelled = false;
    all.select_photos.unload();
}

void close_without_choice(windows & all)
{
    all.main.photo_choice_cancelled = true;
    all.main.txtPhotos.tag = all.select_photos.saved_list_path;
    all.select_photos.unload();
}

void take_folder(windows & all)
{
    all.main.txtPhotos.tag = all.select_photos.txtCards.text();
    close_with(all, photo_source::folder, "Folder:", all.select_photos.txtCards.text());
}

void choose_folder(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    const std::string folder = get_photo_folder(all.main);
    if (all.main.table.last_photo == folder_cancelled) {
        all.main.table.last_photo = window.saved_last_photo;
        window.cmdOk.enable(!window.txtCards.text().empty());
        return;
    }
    window.txtCards.set_text(folder);
    take_folder(all);
}

void optFolder_click(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    const bool by_user = !window.skip_next_click;
    window.skip_next_click = false;
    show_box_controls(window, true);
    window.cmdCards.enable(true);
    window.txtCards.set_text("");
    show_box(window, folder_left);
    if (by_user)
        choose_folder(all);
}

void optList_click(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    if (window.skip_next_click) {
        window.skip_next_click = false;
        return;
    }
    window.optList.tag = "False";
    const auto list = get_photo_list(all.main);
    window.txtCards.show(true);
    if (!list) {
        window.cmdOk.enable(false);
        return;
    }
    window.cmdCards.show(false);
    show_box(window, list_left);
    all.main.txtPhotos.tag = joined(all.main.data_folder, "piclists/") + window.txtCards.text() + ".pls";
    close_with(all, photo_source::list, "Photo List:", window.txtCards.text());
}

void cmdCards_click(windows & all)
{
    if (all.select_photos.optFolder.selected())
        choose_folder(all);
    else
        optList_click(all);
}

enum class selecting { anew, change };

// False when the dialog is over or shows again without a selection.
bool change_selection(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    if (!ask(all.main.desk, all.photo_list)) {
        close_without_choice(all);
        return false;
    }
    if (all.main.selected_count >= 1)
        return true;
    window.optChange.show(false);
    window.skip_next_click = true;
    window.optFolder.select();
    window.cmdOk.enable(false);
    return false;
}

bool select_anew(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    if (all.main.selected_count < 1)
        get_selected_photos(all.main);
    if (all.main.selected_count >= 1)
        return true;
    window.optSelect.select(false);
    window.cmdOk.enable(false);
    return false;
}

void select_photos(windows & all, selecting how)
{
    frmSelectPhotos & window = all.select_photos;
    if (window.skip_next_click) {
        window.skip_next_click = false;
        return;
    }
    window.show(false);
    const afterwards shown_again([&window] {
        if (window.loaded())
            window.show(true);
    });
    show_box_controls(window, false);
    all.main.working_list_path = last_photos_path(all.main);
    all.main.txtPhotos.tag.clear();
    if (how == selecting::change ? !change_selection(all) : !select_anew(all))
        return;
    all.main.txtPhotos.tag = all.main.working_list_path;
    close_with(all, photo_source::selection, "Selected:", all.main.cmdPhotos.tag + " selected photos");
}

void optChange_click(windows & all)
{
    all.select_photos.optFolder.select(false);
    select_photos(all, selecting::change);
}

void take_former_selection(windows & all)
{
    close_with(all, photo_source::selection,
               "Selected:", std::to_string(all.main.table.last_photo + 1) + " selected photos");
    all.main.photo_choice_cancelled = all.main.selected_count < 1;
}

void cmdOk_click(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    if (window.optFolder.selected()) {
        look_again_at_folder(all.main, window.txtCards.text());
        take_folder(all);
    } else if (window.optList.selected())
        close_with(all, photo_source::list, "Photo List:", window.txtCards.text());
    else
        take_former_selection(all);
}

}  // namespace

void connect_frmSelectPhotos(windows & all)
{
    frmSelectPhotos & window = all.select_photos;
    window.on_load = [&all] { load_select_photos(all); };
    window.optFolder.on_click = [&all] { optFolder_click(all); };
    window.optList.on_click = [&all] { optList_click(all); };
    window.optSelect.on_click = [&all] { select_photos(all, selecting::anew); };
    window.optChange.on_click = [&all] { optChange_click(all); };
    window.cmdCards.on_click = [&all] { cmdCards_click(all); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&all] { close_without_choice(all); };
    window.on_query_unload = [&all] {
        close_without_choice(all);
        return false;
    };
}
