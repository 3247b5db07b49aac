#include "frames/sets/frmFrames.h"

#include "frames/icons/icon_list.h"
#include "frames/sets/frame_field.h"
#include "frames/sets/frame_rendering.h"
#include "frames/sets/frame_saving.h"
#include "frames/sets/frame_sets.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/for_now.h"

#include <algorithm>

// The editor of a frame set.

namespace {

// A new set begins with these.
constexpr std::uint32_t deep_blue = 0x5F3A1F, ivory = 0xEAF1F4, gold = 0x6CB4DD, ink = 0x2E2419;
constexpr const char * no_choice = "None";

// What a number of captions can be; a set that was written by hand may say anything.
constexpr double most_captions = 32767;

// A form shows letters of this size, whatever size the captions will have.
constexpr double shown_size = 13;

bool show_settled(const frmFrames & editor)
{
    return editor.loaded() && !editor.settling && !editor.rendering;
}

void show_change(windows & all)
{
    if (show_settled(all.frames))
        preview_frame(all.main);
}

void set_font(frmFrames & editor, font_style font)
{
    font.size = shown_size;
    editor.lblFont.set_font(font);
    editor.lblFont.set_text(font.name);
}

void begin_anew(frmFrames & editor)
{
    editor.picOutside.set_back_color(deep_blue);
    editor.picInside.set_back_color(ivory);
    editor.picFont_BG.set_back_color(gold);
    editor.picFont_FG.set_back_color(ink);
    set_font(editor, {.name = "Sans Serif", .bold = true});
    editor.txtCaption.set_text("Sample");
    editor.caption_count = 0;
}

void list_photo_lists(windows & all)
{
    std::vector<std::string> names{no_choice};
    const std::string folder = joined(all.main.data_folder, "piclists");
    for (const std::string & file : folder_exists(folder) ? files_in(folder) : std::vector<std::string>())
        if (lower_case(file).ends_with(".pls"))
            names.push_back(file.substr(0, file.size() - 4));
    all.frames.cmbPhotos.set_items(std::move(names));
    all.frames.cmbPhotos.set_text(no_choice);
}

// A list that is gone stays in the settings until the user chooses another.
void choose_photo_list(frmFrames & editor, const std::string & list)
{
    if (list.empty())
        return;
    editor.cmbPhotos.set_text(list);
    if (editor.cmbPhotos.list_index() < 0)
        editor.cmbPhotos.add_item(list);
}

std::uint32_t color_setting(const frmMain & main, std::string_view key)
{
    const double number = leading_number(GetFrameSetting(main, key));
    constexpr double beyond = 4294967296.0;
    return number > 0 && number < beyond ? static_cast<std::uint32_t>(number) & 0xFFFFFFU : 0U;
}

void read_settings(windows & all)
{
    frmFrames & editor = all.frames;
    const frmMain & main = all.main;
    editor.picOutside.set_back_color(color_setting(main, "Outside Color"));
    editor.picInside.set_back_color(color_setting(main, "Inside Color"));
    editor.picFont_BG.set_back_color(color_setting(main, "Caption Color"));
    editor.picFont_FG.set_back_color(color_setting(main, "Font Color"));
    set_font(editor, {.name = GetFrameSetting(main, "Font Name"),
                      .bold = GetFrameSetting(main, "Font Bold") == "True",
                      .italic = GetFrameSetting(main, "Font Italic") == "True"});
    editor.txtCaption.set_text(GetFrameSetting(main, "Caption Text"));
    editor.current_icon = GetFrameSetting(main, "Icon");
    choose_photo_list(editor, GetFrameSetting(main, "Picture List"));
    const double count = leading_number(GetFrameSetting(main, "Number of Captions"));
    editor.caption_count = nearest16(std::clamp(count, 0.0, most_captions));
}

void show_buttons(frmFrames & editor)
{
    editor.lblCount.show(false);
    for (button * each : {&editor.cmdSave, &editor.cmdCancel, &editor.cmdHelp})
        each->show(true);
}

void load_frames(windows & all)
{
    frmFrames & editor = all.frames;
    all.main.font_extended = false;
    editor.rendering = false;
    show_buttons(editor);
    {
        const for_now quiet(editor.settling, true);
        list_photo_lists(all);
        editor.current_icon = no_choice;
        begin_anew(editor);
        if (all.custom.edit_frame_name != unnamed_set)
            read_settings(all);
        load_icons(all.main);
    }
    preview_frame(all.main);
}

void choose_color(windows & all, picture & swatch)
{
    if (const auto color = all.main.desk.choose_color(swatch.back_color())) {
        swatch.set_back_color(*color);
        show_change(all);
    }
}

// The font window edits the font of the collage's caption; the frames take what it leaves there.
void cmdFont_click(windows & all)
{
    all.main.desk.show_modal(all.font);
    set_font(all.frames, all.main.txtCaption.font());
    show_change(all);
}

void cmbIcons_click(windows & all)
{
    const std::string path = look_of(all.main).icon_path;
    if (!path.empty() && !load_picture(picture_format::bmp, path))
        all.main.desk.message("That does not appear to be a valid BMP file");
    show_change(all);
}

void cmdSave_click(windows & all)
{
    if (save_frame_set(all.main))
        all.frames.unload();
}

void connect_swatches(windows & all)
{
    frmFrames & editor = all.frames;
    editor.picOutside.on_click =
        editor.cmdOutside.on_click = [&all] { choose_color(all, all.frames.picOutside); };
    editor.picInside.on_click =
        editor.cmdInside.on_click = [&all] { choose_color(all, all.frames.picInside); };
    editor.picFont_BG.on_click =
        editor.cmdCaption.on_click = [&all] { choose_color(all, all.frames.picFont_BG); };
    editor.picFont_FG.on_click = [&all] { choose_color(all, all.frames.picFont_FG); };
}

}  // namespace

void connect_frmFrames(windows & all)
{
    frmFrames & editor = all.frames;
    connect_swatches(all);
    editor.on_load = [&all] { load_frames(all); };
    editor.on_query_unload = [&editor] { return !editor.rendering; };
    editor.cmdFont.on_click = [&all] { cmdFont_click(all); };
    editor.frameFont.on_click = [&all] { show_change(all); };
    editor.txtCaption.on_change = editor.txtCaption.on_leave = [&all] { show_change(all); };
    editor.cmbIcons.on_click = [&all] { cmbIcons_click(all); };
    editor.cmdCaptions.on_click = [&all] { all.main.desk.show_modal(all.captions); };
    editor.cmdSave.on_click = [&all] { cmdSave_click(all); };
    editor.cmdCancel.on_click = [&editor] { editor.unload(); };
}
