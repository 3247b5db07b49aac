#include "support/windows/show_help.h"
#include "tests/session/opened_session.h"

#include <initializer_list>
#include <stdexcept>

namespace {

struct topic {
    const char *window, *page;
};

// An empty page: the window has nothing to explain.
constexpr topic topics[] = {
    {"frmThemes", "designs.htm"},
    {"frmDesigns", "designs.htm"},
    {"frmImage", "display.htm"},
    {"frmFrames", "custom_frames.htm"},
    {"frmCaptions", "custom_frames.htm"},
    {"frmCustom", "custom_frames.htm"},
    {"frmFrameName", "frame_name.htm"},
    {"frmIconName", "icons.htm"},
    {"frmFont", "fonts.htm"},
    {"frmSize", "size.htm"},
    {"frmSelectPhotos", "select_photos.htm"},
    {"frmPhotoList", "photo_list.htm"},
    {"frmPictures", "edit_photos.htm"},
    {"frmPictureList", "edit_photo_list.htm"},
    {"frmPictureName", "photo_name.htm"},
    {"frmNewDesign", "save_design.htm"},
    {"frmMatrix", "matrix.htm"},
    {"frmLettering", "lettering.htm"},
    {"frmPuzzle", "puzzle.htm"},
    {"frmPhotoCnt", ""},
    {"frmFilling", ""},
    {"frmAbout", ""},
    {"frmCaptionText", ""},
};

form & named(windows & all, const std::string & name)
{
    for (form * each : all.others())
        if (each->name() == name)
            return *each;
    throw std::out_of_range(name);
}

// What these keys open in a window that takes them.
std::vector<std::string> opened_by(opened_session & session, const form & window,
                                   std::initializer_list<key> keys)
{
    session.desk.opened_documents.clear();
    if (window.on_key)
        for (const key each : keys)
            window.on_key(each);
    return session.desk.opened_documents;
}

}  // namespace

TEST(help, both_keys_open_the_own_page_of_every_window)
{
    opened_session session;
    for (const auto & [name, page] : topics) {
        const std::string address = documentation_address(std::string("/help/") + page);
        const std::vector<std::string> twice{address, address};
        EXPECT_EQ(opened_by(session, named(session.all, name), {key::f1, key::help}),
                  *page ? twice : std::vector<std::string>())
            << name;
    }
}

TEST(help, the_help_button_of_a_window_opens_the_same_page)
{
    opened_session session;
    int buttons = 0;
    for (form * each : session.all.others())
        for (const char * name : {"cmdHelp", "cmdhelp"})
            if (auto * const help_button = dynamic_cast<button *>(each->find(name))) {
                const std::vector<std::string> by_key = opened_by(session, *each, {key::f1});
                EXPECT_EQ(by_key.size(), 1U) << each->name();
                session.desk.opened_documents.clear();
                help_button->click();
                EXPECT_EQ(session.desk.opened_documents, by_key) << each->name();
                ++buttons;
            }
    EXPECT_GE(buttons, 13);
}
