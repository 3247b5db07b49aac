#pragma once

#include "photos/lists/photo_list.h"
#include "support/files/paths.h"
#include "tests/session/opened_session.h"

/// A session with a folder of two photos; nothing is chosen yet.
struct photo_choice : opened_session {
    photo_choice()
    {
        for (const char * name : {"album/A.JPG", "album/b.Jpg", "album/c.jpeg"})
            folder.write(name, "no picture");
        folder.at("data/piclists/x");
    }

    frmSelectPhotos & dialog = all.select_photos;

    /// Opens the dialog as the program's user sees it and plays.
    void open(std::function<void(frmSelectPhotos &)> play)
    {
        main.photo_choice_cancelled = false;
        desk.on_modal<frmSelectPhotos>(std::move(play));
        desk.show_modal(dialog);
    }

    void have_chosen(photo_source kind, const std::string & text, const std::string & path)
    {
        set_photo_source_kind(main, kind);
        main.txtPhotos.set_text(text);
        main.txtPhotos.tag = path;
    }

    void have_selected(int count)
    {
        std::vector<std::string> photos;
        for (int i = 0; i < count; ++i)
            photos.push_back("/p/" + std::to_string(i) + ".jpg");
        main.txtPhotos.tag.clear();
        append_to_list(main, photos);
        have_chosen(photo_source::selection, main.cmdPhotos.tag + " selected photos", main.txtPhotos.tag);
    }

    std::string choice() const
    {
        return main.lblPhotos.tag + "|" + main.lblPhotos.caption() + "|" + main.txtPhotos.text() + "|" +
               name_of(main.txtPhotos.tag);
    }
};
