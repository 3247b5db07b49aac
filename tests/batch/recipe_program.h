#pragma once

#include "batch/design_choice.h"
#include "batch/given_photos.h"
#include "quick/start_quick.h"
#include "recipes/open_flurn.h"
#include "recipes/recipe_shelf.h"
#include "session/connect_all.h"
#include "session/start_designed.h"
#include "tests/batch/batch_program.h"

#include <functional>
#include <string>
#include <utility>

/// A window as a user has it, which owns its data folder, played by what it opens.
struct own_window {
    explicit own_window(const batch_folders & folders, std::uint64_t seed) : all(desk, seeded_random(seed))
    {
        all.main.install_folder = folders.install_folder;
        all.main.data_folder = folders.data.public_folder;
        connect_all(all);
        all.main.load();
        desk.on_modal = [this](form & window) { play(window); };
    }

    void play(form & window)
    {
        if (&window == &all.image)
            poster = read_file(finished_path(main));
        else if (&window == &all.select_photos)
            take_photos(main, {photos}, "");
        else if (&window == &all.lettering) {
            all.lettering.txtLettering.set_text("Hi you");
            all.lettering.optSerif.select();
        }
        if (button * const ok = dynamic_cast<button *>(window.find("cmdOk")))
            if (&window != &all.image && &window != &all.select_photos)
                ok->click();
    }

    std::string preview() const { return read_file(finished_path(main)); }

    batch_desktop desk{answer::no};
    windows all;
    frmMain & main = all.main;
    std::string photos, poster;
};

using beginning = std::function<void(own_window &)>;

inline beginning of_design(const std::string & name, const std::string & frames = {},
                           const std::string & orientation = {})
{
    return [=](own_window & window) {
        batch_arguments arguments;
        arguments.design = name;
        arguments.frames = frames;
        arguments.orientation = orientation;
        choose_design(window.main, arguments);
        take_photos(window.main, {window.photos}, "");
        start_designed(window.main);
    };
}

inline beginning of_random_design(const std::string & name)
{
    return [=](own_window & window) {
        window.main.collage.design_rotated = true;
        of_design(name)(window);
    };
}

inline beginning of_style(option_button frmMain::*style, const std::string & shape = {})
{
    return [=](own_window & window) {
        begin_quick(window.main, [&] { take_photos(window.main, {window.photos}, ""); });
        (window.main.*style).select();
        if (!shape.empty())
            window.main.cmbShapes.choose_text(shape);
    };
}

/// Flurns of a window, with a data folder of their own.
class recipe_program : public batch_program {
protected:
    void SetUp() override { use_data_of_its_own(); }

    // The recipe of the flurn that was made; its preview and poster.
    struct made_flurn {
        std::string file, preview, poster;
    };
    made_flurn made(const beginning & begin)
    {
        own_window window(folders, 11);
        window.photos = photos(9);
        begin(window);
        made_flurn result{.file = {}, .preview = window.preview(), .poster = {}};
        window.main.cmdFlurn.click();
        result.poster = window.poster;
        const auto kept = kept_recipes(window.main);
        result.file = kept.empty() ? "" : kept.front().file;
        return result;
    }

    // The preview and the poster of the flurn in a window that opens it, and where something is changed then.
    std::pair<std::string, std::string> opened(const std::string & file,
                                               const std::function<void(frmMain &)> & change = {}) const
    {
        own_window window(folders, 77);
        open_flurn(window.main, file);
        if (change)
            change(window.main);
        const std::string preview = window.preview();
        window.main.cmdFlurn.click();
        return {preview, window.poster};
    }
};

inline bool names_part(const std::string & text, const std::string & part)
{
    return text.find(part) != std::string::npos;
}
