#include "photos/editor/frmPictures_popup.h"

#include "photos/editor/photo_cells.h"
#include "photos/editor/photo_grid.h"
#include "session/windows.h"

namespace {

picture & cell_of(frmPictures & window, int cell)
{
    return window.picIn[static_cast<std::size_t>(cell)];
}

bool holds_photo(const frmPictures & window, int cell)
{
    return cell >= 0 && cell < editable_photos && !is_empty(window.picIn[static_cast<std::size_t>(cell)]);
}

void open_popup(frmPictures & window, int cell)
{
    if (window.checking)
        return;
    window.selected_cell = static_cast<int16>(cell);
    window.mnuMove.enable(holds_photo(window, cell - 1));
    window.mnuPopup.pop_up();
}

// The keyboard goes to the photo that is nearest, those behind first.
void focus_near(frmPictures & window, int cell)
{
    for (int step = 1; step < editable_photos; ++step)
        for (const int near : {cell + step, cell - step})
            if (holds_photo(window, near)) {
                cell_of(window, near).take_focus();
                return;
            }
    window.cmdAdd.take_focus();
}

void remove_photo(frmPictures & window, int cell)
{
    if (window.checking || !holds_photo(window, cell))
        return;
    clear_cell(window, cell);
    if (is_empty(window))
        window.cmdSave.enable(false);
    focus_near(window, cell);
}

void mnuInsert_click(windows & all)
{
    const int cell = all.pictures.selected_cell;
    if (!holds_photo(all.pictures, cell))
        return;
    if (!make_gap(all.pictures, cell))
        all.main.desk.message("No space left to insert.  Remove some pictures to make room");
    else
        cell_of(all.pictures, cell + 1).take_focus();
}

void mnuMove_click(frmPictures & window)
{
    const int cell = window.selected_cell;
    if (!holds_photo(window, cell) || !holds_photo(window, cell - 1))
        return;
    swap_cells(window, cell - 1, cell);
    cell_of(window, cell - 1).take_focus();
}

void mnuView_click(windows & all)
{
    if (!holds_photo(all.pictures, all.pictures.selected_cell))
        return;
    const std::string & photo = cell_of(all.pictures, all.pictures.selected_cell).tag;
    if (!all.main.desk.open_document(photo))
        all.main.desk.message("No program could be started for this photo:\r\n" + photo +
                              "\r\n\r\nPlease open it in a program of your choice.");
}

void press_key(frmPictures & window, int cell, picture_key pressed)
{
    if (pressed == picture_key::remove) {
        remove_photo(window, cell);
        return;
    }
    const std::optional<int> to = cell_beside(cell, pressed);
    if (window.checking || !to || !holds_photo(window, cell))
        return;
    if (holds_photo(window, *to))
        swap_cells(window, cell, *to);
    else
        move_cell(window, cell, *to);
    cell_of(window, *to).take_focus();
}

}  // namespace

void connect_frmPictures_popup(windows & all)
{
    frmPictures & window = all.pictures;
    for (int cell = 0; cell < editable_photos; ++cell) {
        cell_of(window, cell).on_popup = [&window, cell] { open_popup(window, cell); };
        cell_of(window, cell).on_key = [&window, cell](picture_key pressed) {
            press_key(window, cell, pressed);
        };
    }
    window.mnuRemove.on_click = [&window] { remove_photo(window, window.selected_cell); };
    window.mnuInsert.on_click = [&all] { mnuInsert_click(all); };
    window.mnuMove.on_click = [&window] { mnuMove_click(window); };
    window.mnuView.on_click = [&all] { mnuView_click(all); };
}
