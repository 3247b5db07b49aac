#include "frames/icons/icon_list.h"

#include "frames/icons/icon_line.h"
#include "session/windows.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/letter_case.h"

namespace {

constexpr int last_taken = 200;
constexpr const char * no_icon = "None";

std::string icons_folder(const frmMain & main)
{
    return joined(main.data_folder, "icons");
}

std::string list_path(const frmMain & main)
{
    return joined(icons_folder(main), "icons");
}

void offer(frmFrames & editor, const icon_entry & icon)
{
    editor.cmbIcons.add_item(icon.name);
    editor.icon_files.push_back(icon.file);
    if (icon.name == editor.current_icon)
        editor.cmbIcons.set_text(icon.name);
}

void add_line(const frmMain & main, const std::string & line)
{
    std::string list = read_file(list_path(main));
    if (!list.empty() && list.back() != '\n')
        list += "\r\n";
    replace_file(list_path(main), list + line + "\r\n");
}

// The first name that is free: the picture's own, or with a number.
std::optional<taken_icon> free_file(const frmMain & main)
{
    std::optional<std::string> file = icon_file_name(main.icon_path, "");
    int tries = 0;
    while (file && file_exists(icons_folder(main) + path_separator + *file))
        file = icon_file_name(main.icon_path, std::to_string(++tries));
    if (!file)
        return std::nullopt;
    return taken_icon{.file = *file, .renamed = tries > 0};
}

}  // namespace

void load_icons(frmMain & main)
{
    frmFrames & editor = main.all->frames;
    line_source lines(list_path(main));
    editor.cmbIcons.set_items({no_icon});
    editor.cmbIcons.set_text(no_icon);
    editor.icon_files.clear();
    while (!lines.at_end()) {
        if (editor.icon_files.size() > last_taken) {
            main.desk.message("There is a maximum of 200 icons");
            break;
        }
        if (const auto icon = icon_of_line(lines.read_line()))
            offer(editor, *icon);
    }
}

bool is_icon_name_taken(const frmMain & main, const std::string & name)
{
    const std::string wanted = upper_case(name);
    if (wanted == upper_case(no_icon))
        return true;
    for (line_source lines(list_path(main)); !lines.at_end();) {
        const auto icon = icon_of_line(lines.read_line());
        if (icon && upper_case(icon->name) == wanted)
            return true;
    }
    return false;
}

std::optional<taken_icon> take_icon(frmMain & main, const std::string & name)
{
    const std::optional<taken_icon> taken = free_file(main);
    if (!taken) {
        main.desk.message("Invalid BMP file name???");
        return std::nullopt;
    }
    copy_file(main.icon_path, icons_folder(main) + path_separator + taken->file);
    add_line(main, name + " " + taken->file);
    return taken;
}
