#include "support/windows/show_help.h"
#include "tests/session/opened_session.h"

#include <algorithm>

namespace {

struct topic {
    const char *window, *page;
};

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
};

// They have nothing to explain.
constexpr std::string_view without_help[] = {"frmPhotoCnt", "frmAbout", "frmCaptionText"};

std::string page_of(const form & window)
{
    const auto found = std::find_if(std::begin(topics), std::end(topics),
                                    [&](const topic & each) { return window.name() == each.window; });
    return found == std::end(topics) ? std::string() : found->page;
}

}  // namespace

TEST(help, both_keys_open_the_own_page_of_every_window)
{
    opened_session session;
    for (form * each : session.all.others()) {
        if (std::count(std::begin(without_help), std::end(without_help), each->name()) > 0)
            continue;
        ASSERT_FALSE(page_of(*each).empty()) << each->name() << " has no page";
        ASSERT_TRUE(each->on_key) << each->name();
        session.desk.opened_documents.clear();
        each->on_key(key::f1);
        each->on_key(key::help);
        const std::string address = documentation_address("/help/" + page_of(*each));
        EXPECT_EQ(session.desk.opened_documents, (std::vector<std::string>{address, address}))
            << each->name();
    }
}

TEST(help, the_help_button_of_a_window_opens_the_same_page)
{
    opened_session session;
    for (form * each : session.all.others()) {
        auto * const help_button = dynamic_cast<button *>(each->find("cmdHelp"));
        if (help_button == nullptr)
            continue;
        session.desk.opened_documents.clear();
        help_button->click();
        EXPECT_EQ(session.desk.opened_documents,
                  std::vector<std::string>{documentation_address("/help/" + page_of(*each))})
            << each->name();
    }
}
