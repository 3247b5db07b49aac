#include "frames/sets/frame_saving.h"

#include "frames/sets/frame_field.h"
#include "frames/sets/frame_rendering.h"
#include "frames/sets/frame_sets.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/for_now.h"
#include "support/replaced.h"

namespace {

std::string folder_of_set(const frmMain & main)
{
    return frame_set_folder(main, main.all->custom.edit_frame_name);
}

bool keeps_sample_caption(frmMain & main)
{
    return main.all->frames.txtCaption.text() != "Sample" ||
           main.desk.ask({.title = "",
                          .text = "It looks like you haven't changed the default caption.\r\n\r\n"
                                  "Do you want to use that 'Sample' as a caption?",
                          .offered = answers::yes_no_cancel}) == answer::yes;
}

// Before anything is written: a set whose icon or captions are gone stays as it was.
bool has_its_icon(frmMain & main)
{
    const std::string path = look_of(main).icon_path;
    if (path.empty() || load_picture(picture_format::bmp, path))
        return true;
    main.desk.message("That does not appear to be a valid BMP file");
    return false;
}

std::vector<std::string> captions_of_set(const frmMain & main)
{
    std::vector<std::string> captions;
    if (main.all->frames.caption_count < 1)
        return captions;
    line_source lines(joined(folder_of_set(main), "captions"));
    for (int i = 0; i < main.all->frames.caption_count; ++i)
        captions.push_back(lines.read_line());
    return captions;
}

std::string word(bool is_true)
{
    return is_true ? "True" : "False";
}

void write_settings(const frmMain & main)
{
    const frmFrames & editor = main.all->frames;
    const font_style & font = editor.lblFont.font();
    const std::string path = joined(folder_of_set(main), "design.ini");
    std::string design = file_exists(path) ? read_file(path) : std::string();
    SetFrameSetting(design, "Outside Color", std::to_string(editor.picOutside.back_color()));
    SetFrameSetting(design, "Inside Color", std::to_string(editor.picInside.back_color()));
    SetFrameSetting(design, "Caption Color", std::to_string(editor.picFont_BG.back_color()));
    SetFrameSetting(design, "Font Color", std::to_string(editor.picFont_FG.back_color()));
    SetFrameSetting(design, "Font Name", font.name);
    SetFrameSetting(design, "Font Bold", word(font.bold));
    SetFrameSetting(design, "Font Italic", word(font.italic));
    SetFrameSetting(design, "Caption Text", editor.txtCaption.text());
    SetFrameSetting(design, "Icon", editor.cmbIcons.text());
    SetFrameSetting(design, "Picture List", editor.cmbPhotos.text());
    SetFrameSetting(design, "Number of Captions", formatted(editor.caption_count));
    replace_file(path, design);
}

// The settings are there before the folder has a name under which it is listed.
void give_name(frmMain & main, const std::string & name)
{
    write_settings(main);
    rename_folder(folder_of_set(main), frame_set_folder(main, name));
    main.all->custom.edit_frame_name = name;
}

bool has_name(frmMain & main)
{
    if (main.all->custom.edit_frame_name != unnamed_set)
        return true;
    const auto name = ask(main.desk, main.all->frame_name);
    if (name)
        give_name(main, *name);
    return name.has_value();
}

void show_progress(frmFrames & editor, bool on)
{
    for (button * each : {&editor.cmdSave, &editor.cmdCancel, &editor.cmdHelp})
        each->show(!on);
    editor.lblCount.show(on);
}

std::string frame_path(const frmMain & main, char letter, int number)
{
    return joined(folder_of_set(main), std::string(1, letter) + "frame" + formatted(number, 2) + ".jpg");
}

void render(frmMain & main, const std::string & caption, int number)
{
    main.all->frames.txtCaption.set_text(caption);
    render_portrait_frame(main, frame_path(main, 'p', number));
}

// An empty caption stands for the usual one.
void render_captions(frmMain & main, const std::string & usual, const std::vector<std::string> & captions)
{
    frmFrames & editor = main.all->frames;
    const int count = static_cast<int>(captions.size());
    if (count > 0)
        show_progress(editor, true);
    for (int number = 1; number <= count; ++number) {
        editor.lblCount.set_caption("Generating number  " + std::to_string(number) + " of  " +
                                    std::to_string(count) + " frames");
        main.desk.pump();
        const std::string & caption = captions[static_cast<std::size_t>(number) - 1];
        render(main, caption.empty() ? usual : caption, number);
    }
}

void delete_frames_behind(const frmMain & main, int last)
{
    for (int number = last + 1; number <= last_frame; ++number)
        for (const char letter : {'p', 'l'})
            delete_file(frame_path(main, letter, number));
}

}  // namespace

bool save_frame_set(frmMain & main)
{
    if (!keeps_sample_caption(main) || !has_its_icon(main))
        return false;
    const std::vector<std::string> captions = captions_of_set(main);
    if (!has_name(main))
        return false;
    write_settings(main);
    const busy working(main.desk);
    frmFrames & editor = main.all->frames;
    const std::string usual = editor.txtCaption.text();
    const for_now rendering(editor.rendering, true);
    const afterwards as_it_was([&] {
        editor.txtCaption.set_text(usual);
        show_progress(editor, false);
    });
    render(main, usual, 0);
    render_captions(main, usual, captions);
    delete_frames_behind(main, static_cast<int>(captions.size()));
    return true;
}
