#pragma once

#include "frames/sets/frame_sets.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

#include <functional>

/// A session with the folders of the frames and an empty list of icons.
struct frame_session : opened_session {
    frame_session()
    {
        make_folder(folder.at("data/frames"));
        folder.write("data/icons/icons", "");
    }
    /// A set as the editor leaves it, with these settings beside the usual ones.
    void write_set(const std::string & name, const std::string & settings = "Number of Captions=0\r\n",
                   const std::string & captions = "")
    {
        folder.write("data/frames/" + name + "/design.ini", "[Frame Design]\r\n" + settings);
        folder.write("data/frames/" + name + "/captions", captions);
    }
    std::string in_frames(const std::string & name) const { return folder.at("data/frames") + "/" + name; }
    bool has_set(const std::string & name) const { return folder_exists(in_frames(name)); }
    /// Opens the editor for a set, or for a new one, and plays the user in it.
    void edit(const std::string & set, std::function<void(frmFrames &)> play)
    {
        desk.on_modal<frmFrames>(std::move(play));
        all.custom.edit_frame_name = set;
        if (set == unnamed_set)
            new_custom_frame(main);
        else
            desk.show_modal(all.frames);
    }
    /// The user will give that name and press Ok.
    void will_name(const std::string & name)
    {
        desk.on_modal<frmFrameName>([name](frmFrameName & window) {
            window.txtName.set_text(name);
            window.cmdOk.click();
        });
    }
};
