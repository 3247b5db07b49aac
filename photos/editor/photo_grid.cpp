#include "photos/editor/photo_grid.h"

#include "photos/editor/edit_thumbnail.h"
#include "photos/editor/photo_cells.h"
#include "photos/lists/pls_line.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/for_now.h"
#include "support/platform_error.h"

#include <algorithm>
#include <utility>

namespace {

picture & cell_of(frmPictures & window, int cell)
{
    if (cell < 0 || cell >= editable_photos)
        throw platform_error(error_number::subscript, "The grid of photos has no such cell.");
    return window.picIn[static_cast<std::size_t>(cell)];
}

struct cell_content {
    std::string photo, file;
    orientation shape;
};

cell_content content_of(const picture & cell)
{
    return {.photo = cell.tag, .file = cell.file(), .shape = cell_shape(cell.place())};
}

void fill_cell(frmPictures & window, int number, const cell_content & content)
{
    picture & cell = cell_of(window, number);
    cell.tag = content.photo;
    cell.set_tool_tip(content.photo);
    cell.move(cell_place(number, content.shape));
    cell.load(content.file);
    cell.show(true);
}

std::vector<std::string> photos_of_list(const std::string & path)
{
    std::vector<std::string> photos;
    for (line_source lines(path); !lines.at_end();)
        photos.push_back(photo_of_line(lines.read_line()));
    return photos;
}

// The notice stands in the window that the user sees: the editor itself isn't open before its grid is filled.
void show_checking(windows & all, const std::string & photo)
{
    const std::string text = "Checking  " + photo + "...";
    for (label * notice :
         {&all.pictures.txtCounting, &all.photo_list.txtCounting, &all.picture_list.txtCounting})
        notice->set_caption(text);
}

// What a cell shows of a photo. That a file stands in the way of thumbnails is told once a folder.
cell_content loaded_content(frmMain & main, const std::string & photo, std::string & told_folder)
{
    show_checking(*main.all, photo);
    if (file_exists(photo) && !make_thumbnail_folder(photo) && told_folder != folder_of(photo)) {
        told_folder = folder_of(photo);
        main.desk.message("Conflicting file for thumb directory");
    }
    const edit_thumbnail shown = thumbnail_for_editing(main, photo);
    return {.photo = photo, .file = shown.file, .shape = shown.shape};
}

void fill_grid(frmMain & main, std::vector<std::string> & photos)
{
    std::string told_folder;
    for (int number = 0; number < editable_photos && !photos.empty(); ++number) {
        fill_cell(main.all->pictures, number, loaded_content(main, photos.front(), told_folder));
        photos.erase(photos.begin());
    }
}

std::optional<int> first_free(const frmPictures & window)
{
    for (int cell = 0; cell < editable_photos; ++cell)
        if (is_empty(window.picIn[static_cast<std::size_t>(cell)]))
            return cell;
    return std::nullopt;
}

std::optional<int> behind_the_last(const frmPictures & window)
{
    int cell = editable_photos;
    while (cell > 0 && is_empty(window.picIn[static_cast<std::size_t>(cell - 1)]))
        --cell;
    return cell < editable_photos ? std::optional(cell) : first_free(window);
}

// The cell that takes a photo wanted there, emptied for it.
std::optional<int> cell_for(frmPictures & window, int wanted)
{
    if (wanted < editable_photos && make_gap(window, wanted))
        return wanted;
    return first_free(window);
}

void add_each(frmMain & main, const std::vector<std::string> & photos, int wanted)
{
    frmPictures & window = main.all->pictures;
    std::string told_folder;
    for (const std::string & photo : photos) {
        if (!first_free(window)) {
            main.desk.message(truncation_message());
            return;
        }
        const cell_content content = loaded_content(main, photo, told_folder);
        fill_cell(window, *cell_for(window, wanted++), content);
    }
}

enum class loading { done, broken_off };

// Photos that were added come from a list of the editor's own: what was left of the user's list stays noted.
void note_left_behind(frmPictures & window, std::vector<std::string> photos, loading how)
{
    if (window.edit_mode == editing::added_photos)
        return;
    window.same_name_allowed = how == loading::done && photos.empty();
    window.left_behind = std::move(photos);
}

}  // namespace

std::string truncation_message()
{
    return "Photo list truncated to the first 60 photos.\r\n\r\nRemove some photos before adding more.";
}

bool is_empty(const picture & cell)
{
    return cell.tag == "0";
}

bool is_empty(const frmPictures & window)
{
    return std::all_of(window.picIn.begin(), window.picIn.end(),
                       [](const picture & cell) { return is_empty(cell); });
}

void clear_cell(frmPictures & window, int number)
{
    picture & cell = cell_of(window, number);
    cell.tag = "0";
    cell.move(cell_place(number, orientation::portrait));
    cell.show(false);
}

void move_cell(frmPictures & window, int from, int to)
{
    if (!is_empty(cell_of(window, to)))
        return;
    fill_cell(window, to, content_of(cell_of(window, from)));
    clear_cell(window, from);
}

void swap_cells(frmPictures & window, int one, int other)
{
    const cell_content first = content_of(cell_of(window, one)), second = content_of(cell_of(window, other));
    fill_cell(window, one, second);
    fill_cell(window, other, first);
}

bool make_gap(frmPictures & window, int cell)
{
    int gap = cell;
    while (gap < editable_photos && !is_empty(cell_of(window, gap)))
        ++gap;
    if (gap == editable_photos)
        return false;
    for (int from = gap - 1; from >= cell; --from)
        move_cell(window, from, from + 1);
    return true;
}

void load_photo_grid(frmMain & main, const std::string & path)
{
    const busy pointer(main.desk);
    // The window can't be left, nor that below it, while photos are being loaded.
    const for_now held_open(main.all->pictures.checking, true);
    std::vector<std::string> photos;
    try {
        with_platform_errors([&] {
            photos = photos_of_list(path);
            fill_grid(main, photos);
        });
        if (!photos.empty())
            main.desk.message(
                "There are more than 60 photos in this list.\r\n\r\n"
                "You will need to save any changes to a new list.");
        note_left_behind(main.all->pictures, std::move(photos), loading::done);
    } catch (const platform_error & error) {
        note_left_behind(main.all->pictures, std::move(photos), loading::broken_off);
        main.desk.message("CAUGHT AN ERROR " + told(error));
    }
}

void add_photos_at(frmMain & main, const std::vector<std::string> & photos, std::optional<int> cell)
{
    frmPictures & window = main.all->pictures;
    const std::optional<int> wanted = cell ? cell : behind_the_last(window);
    const busy pointer(main.desk);
    const for_now held_open(window.checking, true);
    try {
        with_platform_errors([&] { add_each(main, photos, wanted.value_or(0)); });
    } catch (const platform_error & error) {
        main.desk.message("CAUGHT AN ERROR " + told(error));
    }
}

int write_photo_grid(frmMain & main, const std::string & path, const std::vector<std::string> & behind)
{
    frmPictures & window = main.all->pictures;
    std::vector<std::string> lines;
    for (const picture & cell : window.picIn)
        if (!is_empty(cell))
            lines.push_back(list_line(cell_shape(cell.place()), cell.tag));
    for (const std::string & photo : behind)
        lines.push_back(list_line(std::nullopt, photo));
    replace_file(path, text_of(lines));
    for (int number = 0; number < editable_photos; ++number) {
        window.picIn[static_cast<std::size_t>(number)].tag = "0";
        window.picIn[static_cast<std::size_t>(number)].show(false);
    }
    return static_cast<int>(lines.size());
}
