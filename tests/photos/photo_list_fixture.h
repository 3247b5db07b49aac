#pragma once

#include "photos/lists/photo_list.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <vector>

/// A session with photos of its own making, and its table in words.
struct photo_list_test : testing::Test {
    temporary_folder folder;
    scripted_desktop desk;
    random_source random = listed({0.5, 0.0, 0.99, 0.0});
    windows all{desk, random};
    frmMain & main = all.main;

    photo_list_test() { main.data_folder = folder.path(); }

    std::string photo(std::string_view name, int width, int height)
    {
        const std::string path = folder.at(name);
        save_jpeg(plain(width, height, {.red = 9}), path);
        return path;
    }
    void fill_table(std::initializer_list<std::string> photos)
    {
        std::ranges::copy(photos, main.table.photos.begin());
        main.table.last_photo = narrow(static_cast<long>(photos.size()) - 1);
    }
    void list(std::string_view text) { main.txtPhotos.tag = folder.write("list.pls", text); }
    std::string table() const
    {
        std::string text;
        for (int i = 0; i <= main.table.last_photo; ++i)
            text += name_of(main.table[i]) + " ";
        return text;
    }
    std::vector<std::string> taken() const
    {
        return {main.table.photos.begin(), main.table.photos.begin() + main.table.last_photo + 1};
    }
    std::string counted() const
    {
        return std::to_string(main.table.landscape_count) + "l " + std::to_string(main.table.portrait_count) +
               "p " + main.table.orientation_list;
    }
};
