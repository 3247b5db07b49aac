#pragma once

#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

#include <string>

/// Chooses "Save last Flurn" and types that.
inline void save_as(scripted_desktop & desk, frmMain & main, const std::string & name,
                    const std::string & description)
{
    desk.on_modal<frmNewDesign>([=](frmNewDesign & window) {
        window.txtName.set_text(name);
        window.txtDescription.set_text(description);
        window.OKButton.click();
    });
    main.mnuSaveDesign.click();
}

/// A session behind a full-size run of a quick style: its template, its picture, a small catalogue.
struct own_designs_session : opened_session {
    own_designs_session()
    {
        catalogue("[Design001]\nName=Supplied\nSystem=Yes\n");
        folder.write("data/designs/__quick", quick_layout);
        main.lblDesign.set_caption("Quick Block");
        main.mnuSaveDesign.enable(true);
        for (const char * place : {"samples/x", "descriptions/x", "frames/x", "icons/x", "user_images/x"})
            folder.at(std::string("data/") + place);
    }

    void catalogue(const std::string & text) { folder.write("data/designs.ini", text); }
    std::string read(const std::string & name) { return read_file(at(name)); }
    bool has(const std::string & name) { return file_exists(at(name)); }
    std::string at(const std::string & name) { return folder.at("data/" + name); }
    /// A collage of that size, left half red, right half blue.
    void finished(int width, int height)
    {
        bitmap image = plain(width, height, {200, 30, 30});
        paste(image, plain(width / 2, height, {30, 30, 200}), width - width / 2, 0, plain_copy);
        save_jpeg(image, at("tmp/finished.jpg"));
    }
    void save(const std::string & name, const std::string & description = {})
    {
        save_as(desk, main, name, description);
    }
    /// Chooses "Edit designs" and plays the user there.
    void edit(const std::function<void(frmDesigns &)> & play)
    {
        desk.on_modal<frmDesigns>(play);
        main.mnuEditDesigns.click();
    }
    void erase(const std::string & name)
    {
        desk.will_answer(answer::yes);
        edit([=](frmDesigns & window) {
            EXPECT_TRUE(window.lstDesigns.select_text(name)) << name;
            window.cmdDelete.click();
        });
    }

    const std::string quick_layout = "100:100:900:800:0:-1:-1:0:\r\n";
};
