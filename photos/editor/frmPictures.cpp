#include "photos/editor/frmPictures.h"

#include "photos/editor/frmPictures_popup.h"
#include "photos/editor/photo_cells.h"
#include "photos/editor/photo_grid.h"
#include "photos/lists/list_name.h"
#include "photos/lists/photo_list.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/for_now.h"

// The photos of a list are arranged.

namespace {

// What opened the editor can't be used while its photos are being loaded; the notice stands there. Gives what
// was disabled.
std::vector<control *> disable_controls(const form & opener)
{
    std::vector<control *> disabled;
    for (control * each : opener.controls())
        if (each->enabled() && dynamic_cast<label *>(each) == nullptr) {
            each->enable(false);
            disabled.push_back(each);
        }
    return disabled;
}

form & opener_of(windows & all)
{
    if (all.pictures.edit_mode == editing::selection)
        return all.photo_list;
    return all.picture_list;
}

void load_pictures(windows & all)
{
    frmPictures & window = all.pictures;
    window.same_name_allowed = false;
    window.selected_cell = -1;
    window.left_behind.clear();
    for (int cell = 0; cell < editable_photos; ++cell)
        clear_cell(window, cell);
    window.txtCounting.show(false);
    const afterwards usable([disabled = disable_controls(opener_of(all))] {
        for (control * each : disabled)
            each->enable(true);
    });
    load_photo_grid(all.main, window.edit_list_path);
    window.cmdSave.enable(!is_empty(window));
}

// The photos for which there is room behind the `count` of the grid; the others are told once.
std::vector<std::string> fitting(frmMain & main, std::vector<std::string> photos, int count)
{
    const auto room = static_cast<std::size_t>(editable_photos - count);
    if (photos.size() > room) {
        photos.resize(room);
        main.desk.message(truncation_message());
    }
    return photos;
}

// While photos are added the window shows its notice in place of its buttons.
void show_notice(frmPictures & window, bool on)
{
    for (button * each : {&window.cmdSave, &window.cmdHelp, &window.cmdCancel, &window.cmdAdd})
        each->show(!on);
    window.txtCounting.show(on);
}

void cmdAdd_click(windows & all)
{
    const std::vector<std::string> photos = choose_photos(all.main);
    if (photos.empty())
        return;
    const std::string work_file = joined(all.main.data_folder, "piclists/_work_file.pls");
    const int count = write_photo_grid(all.main, work_file);
    append_photos(work_file, fitting(all.main, photos, count));
    {
        const for_now added(all.pictures.edit_mode, editing::added_photos);
        show_notice(all.pictures, true);
        const afterwards usable([&all] { show_notice(all.pictures, false); });
        load_photo_grid(all.main, work_file);
    }
    delete_file(work_file);
    all.pictures.cmdSave.enable(!is_empty(all.pictures));
}

answer wants_same_name(windows & all)
{
    return all.main.desk.ask({.title = "",
                              .text = "\r\nDo you want to save the changes with the same name [" +
                                      list_name(all.pictures.edit_list_path) + "] ?",
                              .offered = answers::yes_no_cancel});
}

// The path to save at, nothing when the user backs out.
std::optional<std::string> target(windows & all)
{
    frmPictures & window = all.pictures;
    if (window.edit_mode == editing::selection)
        return window.edit_list_path;
    if (window.same_name_allowed) {
        const answer given = wants_same_name(all);
        if (given == answer::cancel)
            return std::nullopt;
        if (given == answer::yes)
            return window.edit_list_path;
    }
    return ask(all.main.desk, all.picture_name);
}

// What the grid had no room for, or what couldn't be loaded, stays in a selection: it has no other list to go
// to.
void cmdSave_click(windows & all)
{
    frmPictures & window = all.pictures;
    const auto path = target(all);
    if (!path)
        return;
    const bool selection = window.edit_mode == editing::selection;
    const int count =
        write_photo_grid(all.main, *path, selection ? window.left_behind : std::vector<std::string>());
    all.main.txtPhotos.tag = *path;
    all.main.selected_count = narrow(count);
    all.main.cmdPhotos.tag = std::to_string(count);
    window.unload();
}

// The source of a drag counts for nothing when the photo is let go where it came from.
void drop_cell(frmPictures & window, int from, int x, int y)
{
    const std::optional<int> to = cell_at(x, y);
    if (window.checking || !to || *to == from)
        return;
    move_cell(window, from, *to);
    if (is_empty(window.picIn[static_cast<std::size_t>(from)]))
        window.picIn[static_cast<std::size_t>(*to)].take_focus();
}

}  // namespace

void connect_frmPictures(windows & all)
{
    frmPictures & window = all.pictures;
    window.on_load = [&all] { load_pictures(all); };
    for (int cell = 0; cell < editable_photos; ++cell)
        window.picIn[static_cast<std::size_t>(cell)].on_drop = [&window, cell](int x, int y) {
            drop_cell(window, cell, x, y);
        };
    window.cmdAdd.on_click = [&all] { cmdAdd_click(all); };
    window.cmdSave.on_click = [&all] { cmdSave_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
    window.on_query_unload = [&window] { return !window.checking; };
    connect_frmPictures_popup(all);
}
