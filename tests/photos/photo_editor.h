#pragma once

#include "photos/editor/photo_grid.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/photo_lists.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

#include <filesystem>

/// An editor over small photos: those of an even number are landscape.
struct editor : opened_session {
    editor() { folder.at("data/piclists/x"); }

    std::string photo(int number)
    {
        const std::string path = folder.at("p/" + std::to_string(number) + ".jpg");
        if (!file_exists(path))
            save_jpeg(number % 2 == 0 ? plain(8, 6, {}) : plain(6, 8, {}), path);
        return path;
    }
    std::vector<std::string> photos(int from, int count)
    {
        std::vector<std::string> paths;
        for (int i = 0; i < count; ++i)
            paths.push_back(photo(from + i));
        return paths;
    }
    std::string list_of(int count) { return list_text(photos(0, count)); }
    void edit(editing mode, const std::string & text)
    {
        window.edit_mode = mode;
        window.edit_list_path = folder.write("data/piclists/Sea.pls", text);
        window.load();
    }
    void edit(editing mode, int count) { edit(mode, list_of(count)); }

    picture & cell(int number) { return window.picIn[static_cast<std::size_t>(number)]; }
    /// The numbers of the photos in the first cells, "." for an empty one.
    std::string grid(int cells)
    {
        std::string text;
        for (int i = 0; i < cells; ++i) {
            EXPECT_EQ(cell(i).visible(), cell(i).tag != "0") << i;
            const std::string name = name_of(cell(i).tag);
            text += (is_empty(cell(i)) ? "." : name.substr(0, name.find('.'))) + " ";
        }
        return text;
    }
    std::string list(const std::string & name = "Sea")
    {
        std::string text;
        for (line_source lines(folder.at("data/piclists/" + name + ".pls")); !lines.at_end();) {
            const std::string line = lines.read_line();
            text += line.substr(0, 2) + name_of(line) + " ";
        }
        return text;
    }
    void popup(int number) { cell(number).ask_popup(); }
    frmPictures & window = all.pictures;
};
