#include "frames/captions/frmCaptions.h"

#include "frames/sets/frame_sets.h"
#include "photos/lists/pls_line.h"
#include "photos/lists/saved_lists.h"
#include "session/windows.h"
#include "support/colors.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <algorithm>

// The captions of a frame set.

namespace {

// In 1/15 pixel.
constexpr int plain_width = 8235, width_with_photo = 14295, both_height = 7200;

// In pixels.
constexpr box upright_photo{0, 0, 260, 390}, photo_across{0, 0, 390, 260};

// The mark of the box that has the keyboard.
constexpr std::uint32_t white = 0xFFFFFF, highlight = 0x12649A;

std::string captions_path(const windows & all)
{
    return joined(frame_set_folder(all.main, all.custom.edit_frame_name), "captions");
}

text_box & box_of(frmCaptions & window, int index)
{
    return window.txtCaptions[static_cast<std::size_t>(index)];
}

label & label_of(frmCaptions & window, int index)
{
    return window.lblCaptions[static_cast<std::size_t>(index)];
}

void show_label(label & shown, const std::string & text, std::uint32_t letters, std::uint32_t ground)
{
    shown.set_fore_color(letters);
    shown.set_back_color(ground);
    shown.set_caption(text);
}

void show_number(frmCaptions & window, int index)
{
    show_label(label_of(window, index), std::to_string(index + 1), text_color, about_background);
}

// ---- load

void use_boxes(frmCaptions & window, int count)
{
    window.caption_boxes = narrow(count);
    for (int i = 0; i < frmCaptions::box_count; ++i) {
        box_of(window, i).show(i < count);
        label_of(window, i).show(i < count);
    }
}

// Without its list a set still has its captions: all boxes are in use.
void read_list(windows & all, const std::string & list)
{
    frmCaptions & window = all.captions;
    const std::string path = saved_list_path(all.main, list);
    if (!file_readable(path)) {
        all.main.desk.message("The file.pls index is missing for that photolist.");
        return;
    }
    for (line_source lines(path);
         !lines.at_end() && window.list_photos.size() < std::size_t{frmCaptions::box_count};)
        window.list_photos.push_back(photo_of_line(lines.read_line()));
    use_boxes(window, static_cast<int>(window.list_photos.size()));
}

void read_captions(windows & all)
{
    line_source lines(captions_path(all));
    for (text_box & each : all.captions.txtCaptions)
        if (!lines.at_end())
            each.set_text(lines.read_line());
}

void empty_window(frmCaptions & window)
{
    window.current_box = 0;
    window.list_photos.clear();
    use_boxes(window, frmCaptions::box_count);
    for (int i = 0; i < frmCaptions::box_count; ++i) {
        show_number(window, i);
        box_of(window, i).set_text("");
    }
    window.imgCaption.load("");
}

// ---- the keyboard in the boxes

// The orientation comes from the file's header: a look at it takes no time.
void show_photo(windows & all, int index)
{
    frmCaptions & window = all.captions;
    const auto at = static_cast<std::size_t>(index);
    if (at >= window.list_photos.size())
        return;
    const std::string & photo = window.list_photos[at];
    const std::optional<picture_size> size = usable_jpeg_size(photo);
    window.imgCaption.load(size ? photo : "");
    if (size)
        window.imgCaption.move(size->height > size->width ? upright_photo : photo_across);
    else
        all.main.desk.message("This image no longer exists.");
}

void enter_box(windows & all, int index)
{
    frmCaptions & window = all.captions;
    show_number(window, window.current_box);
    show_label(label_of(window, index), ">", white, highlight);
    window.current_box = narrow(index);
    window.cmdInsert.enable(true);
    window.cmdRemove.enable(true);
    show_photo(all, index);
}

void give_keyboard(windows & all, int index)
{
    box_of(all.captions, index).take_focus();
    enter_box(all, index);
}

void go_on(windows & all, int index)
{
    if (index + 1 < all.captions.caption_boxes)
        give_keyboard(all, index + 1);
}

void disable_moves(frmCaptions & window)
{
    window.cmdInsert.enable(false);
    window.cmdRemove.enable(false);
}

void load_captions(windows & all)
{
    frmCaptions & window = all.captions;
    const std::string & list = all.frames.cmbPhotos.text();
    const bool has_list = list != "None";
    empty_window(window);
    window.resize(has_list ? width_with_photo : plain_width, both_height);
    window.imgCaption.show(has_list);
    if (has_list)
        read_list(all, list);
    read_captions(all);
    if (window.caption_boxes > 0)
        enter_box(all, 0);
    else
        disable_moves(window);
}

// ---- the buttons

void cmdInsert_click(windows & all)
{
    frmCaptions & window = all.captions;
    const int last = window.caption_boxes - 1;
    if (last < 0)
        return;
    if (!box_of(window, last).text().empty()) {
        all.main.desk.message(
            "Inserting will push the last caption out of the set.\r\n\r\n"
            "Please remove the caption that you no longer want to use.");
        return;
    }
    for (int i = last; i > window.current_box; --i)
        box_of(window, i).set_text(box_of(window, i - 1).text());
    box_of(window, window.current_box).set_text("");
    give_keyboard(all, window.current_box);
}

void cmdRemove_click(windows & all)
{
    frmCaptions & window = all.captions;
    const int last = window.caption_boxes - 1;
    if (last < 0)
        return;
    for (int i = window.current_box; i < last; ++i)
        box_of(window, i).set_text(box_of(window, i + 1).text());
    box_of(window, last).set_text("");
    give_keyboard(all, window.current_box);
}

void cmdDone_click(windows & all)
{
    std::vector<std::string> captions;
    int count = 0;
    for (const text_box & each : all.captions.txtCaptions) {
        captions.push_back(each.text());
        if (!each.text().empty())
            count = static_cast<int>(captions.size());
    }
    replace_file(captions_path(all), text_of(captions));
    all.frames.caption_count = narrow(count);
    all.captions.unload();
}

void connect_boxes(windows & all)
{
    for (int i = 0; i < frmCaptions::box_count; ++i) {
        text_box & each = box_of(all.captions, i);
        each.on_enter = [&all, i] { enter_box(all, i); };
        each.on_leave = [&all, i] { show_number(all.captions, i); };
        each.on_return = [&all, i] { go_on(all, i); };
    }
}

}  // namespace

void connect_frmCaptions(windows & all)
{
    frmCaptions & window = all.captions;
    connect_boxes(all);
    window.on_load = [&all] { load_captions(all); };
    window.cmdInsert.on_click = [&all] { cmdInsert_click(all); };
    window.cmdRemove.on_click = [&all] { cmdRemove_click(all); };
    window.cmdDone.on_enter = window.cmdCancel.on_enter = [&window] { disable_moves(window); };
    window.cmdDone.on_click = [&all] { cmdDone_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
