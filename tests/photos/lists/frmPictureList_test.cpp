#include "support/platform_error.h"
#include "tests/session/opened_session.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace {

struct saved_lists : opened_session {
    saved_lists()
    {
        for (const char * name : {"Sea.pls", "M\xC3\xBCller & \"Co\".PLS", "__last__.pls", "notes.txt"})
            folder.write("data/piclists/" + std::string(name), "");
        main.txtPhotos.tag = "before";
    }
    void open(bool managing)
    {
        main.photo_list_edit_mode = managing;
        window.load();
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> sorted = window.lstPictures.items();
        std::ranges::sort(sorted);
        return sorted;
    }
    frmPictureList & window = all.picture_list;
};

}  // namespace

TEST(frmPictureList, lists_the_saved_lists_without_ending_and_without_the_reserved_one)
{
    saved_lists session;
    session.open(false);
    EXPECT_EQ(session.names(), (std::vector<std::string>{"M\xC3\xBCller & \"Co\"", "Sea"}));
}

TEST(frmPictureList, lists_them_in_the_order_of_their_names)
{
    saved_lists session;
    for (const char * name : {"trip 10.pls", "Trip 2.pls", "trip 1.pls", "album.pls"})
        session.folder.write("data/piclists/" + std::string(name), "");
    session.open(false);
    EXPECT_EQ(
        session.window.lstPictures.items(),
        (std::vector<std::string>{"album", "M\xC3\xBCller & \"Co\"", "Sea", "trip 1", "Trip 2", "trip 10"}));
}

TEST(frmPictureList, wears_one_face_as_chooser_and_another_as_manager)
{
    saved_lists session;
    session.open(false);
    EXPECT_EQ(session.window.cmdDone.caption(), "Ok");
    EXPECT_EQ(session.window.cmdDelete.caption(), "Cancel");
    expect_states(session.window, "cmdDone- cmdDelete+ cmdEdit_ txtCounting_");
    session.window.unload();
    session.open(true);
    EXPECT_EQ(session.window.cmdDone.caption(), "Done");
    EXPECT_EQ(session.window.cmdDelete.caption(), "Delete");
    expect_states(session.window, "cmdDone+ cmdDelete- cmdEdit^ cmdEdit-");
}

TEST(frmPictureList, a_click_in_the_list_enables_all_three_buttons)
{
    for (const bool managing : {false, true}) {
        saved_lists session;
        session.open(managing);
        session.window.lstPictures.select(0);
        expect_states(session.window, "cmdDone+ cmdDelete+ cmdEdit+");
    }
}

TEST(frmPictureList, ok_and_a_double_click_choose_a_list)
{
    for (const bool by_button : {false, true}) {
        saved_lists session;
        session.open(false);
        session.window.lstPictures.select_text("Sea");
        if (by_button)
            session.window.cmdDone.click();
        else
            session.window.lstPictures.double_click(session.window.lstPictures.list_index());
        EXPECT_EQ(session.window.result, session.folder.at("data/piclists/Sea.pls"));
        EXPECT_EQ(session.main.txtPhotos.tag, session.window.result);
        EXPECT_FALSE(session.window.loaded());
    }
}

TEST(frmPictureList, cancel_and_the_close_box_choose_none)
{
    for (const bool by_button : {false, true}) {
        saved_lists session;
        session.open(false);
        session.window.lstPictures.select(0);
        if (by_button)
            session.window.cmdDelete.click();
        else
            session.window.request_close();
        EXPECT_EQ(session.window.result, std::nullopt);
        EXPECT_EQ(session.main.txtPhotos.tag, "");
        EXPECT_FALSE(session.window.loaded());
    }
}

TEST(frmPictureList, the_manager_deletes_a_list_at_once)
{
    saved_lists session;
    session.open(true);
    session.window.lstPictures.select_text("Sea");
    session.window.cmdDelete.click();
    EXPECT_FALSE(file_exists(session.folder.at("data/piclists/Sea.pls")));
    EXPECT_EQ(session.names(), (std::vector<std::string>{"M\xC3\xBCller & \"Co\""}));
    expect_states(session.window, "cmdDelete- cmdEdit-");
    session.window.cmdDone.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.main.txtPhotos.tag, "before");
}

TEST(frmPictureList, a_list_that_can_t_be_deleted_stays_in_the_window)
{
    saved_lists session;
    session.open(true);
    session.window.lstPictures.select_text("Sea");
    const std::string lists = session.folder.at("data/piclists");
    for (const std::string & path : {session.folder.path(), session.folder.at("data"), lists})
        ::chmod(path.c_str(), 0755);
    {
        const as_ordinary_user user;
        EXPECT_THROW(session.window.cmdDelete.click(), platform_error);
    }
    EXPECT_EQ(session.names().size(), 2U);
}

TEST(frmPictureList, edit_and_a_double_click_open_the_editor_on_the_list)
{
    for (const bool by_button : {false, true}) {
        saved_lists session;
        session.open(true);
        session.window.lstPictures.select_text("Sea");
        session.desk.on_modal<frmPictures>([&](frmPictures & editor) {
            EXPECT_EQ(editor.edit_mode, editing::saved_list);
            EXPECT_EQ(editor.edit_list_path, session.folder.at("data/piclists/Sea.pls"));
            expect_states(session.window, "txtCounting^");
            session.folder.write("data/piclists/Another.pls", "");
            editor.cmdCancel.click();
        });
        if (by_button)
            session.window.cmdEdit.click();
        else
            session.window.lstPictures.double_click(session.window.lstPictures.list_index());
        expect_states(session.window, "txtCounting_ cmdEdit+ cmdDelete+");
        EXPECT_EQ(session.names().size(), 3U) << "the lists are read again";
        EXPECT_EQ(session.window.lstPictures.text(), "Sea") << "and the one that was edited stays selected";
        EXPECT_TRUE(session.window.loaded());
    }
}

TEST(frmPictureList, the_help_key_opens_its_page)
{
    saved_lists session;
    session.window.on_key(key::f1);
    EXPECT_TRUE(session.desk.opened_documents.front().ends_with("/help/edit_photo_list.htm"));
}

// ---- as chooser of the photo sources

TEST(get_photo_list, the_list_that_was_chosen_becomes_the_source)
{
    saved_lists session;
    set_photo_source_kind(session.main, photo_source::folder);
    session.desk.on_modal<frmPictureList>([&](frmPictureList & window) {
        expect_states(window, "cmdEdit_");
        window.lstPictures.select_text("Sea");
        window.cmdDone.click();
    });
    session.main.photo_list_edit_mode = true;
    session.all.select_photos.load();
    session.all.select_photos.optList.select();
    EXPECT_FALSE(session.all.select_photos.loaded());
    EXPECT_EQ(session.main.lblPhotos.tag, "2");
    EXPECT_EQ(session.main.lblPhotos.caption(), "Photo List:");
    EXPECT_EQ(session.main.txtPhotos.text(), "Sea");
    EXPECT_EQ(session.main.txtPhotos.tag, session.folder.at("data/piclists/Sea.pls"));
    EXPECT_EQ(session.all.select_photos.txtCards.place().left, 102);
    expect_states(session.all.select_photos, "cmdCards_ txtCards^");
}

TEST(get_photo_list, a_cancel_leaves_the_dialog_open_without_ok_and_browse_asks_again)
{
    saved_lists session;
    set_photo_source_kind(session.main, photo_source::folder);
    session.all.select_photos.load();
    const auto cancel = [](frmPictureList & window) { window.cmdDelete.click(); };
    session.desk.on_modal<frmPictureList>(cancel);
    session.all.select_photos.optList.select();
    EXPECT_TRUE(session.all.select_photos.loaded());
    expect_states(session.all.select_photos, "cmdOk- txtCards^ cmdCards^ optList1");
    EXPECT_EQ(session.all.select_photos.optList.tag, "False");
    session.desk.on_modal<frmPictureList>(cancel);
    session.all.select_photos.cmdCards.click();
    session.all.select_photos.cmdCancel.click();
    EXPECT_EQ(session.main.txtPhotos.tag, "before") << "the former choice stays in place";
}

// ---- the menu

TEST(mnuEditSelections, without_lists_it_says_so)
{
    opened_session session;
    session.main.picSample.load("a.jpg");
    session.main.mnuEditSelections.click();
    EXPECT_EQ(session.desk.next_message(), "You have not created any photo lists yet.");
    expect_states(session.main, "picSplash_");
    EXPECT_EQ(session.main.picSample.file(), "");
    EXPECT_TRUE(session.main.photo_list_edit_mode);
}

TEST(mnuEditSelections, a_folder_of_lists_that_is_gone_holds_none)
{
    opened_session session;
    std::filesystem::remove_all(session.folder.at("data/piclists"));
    session.main.mnuEditSelections.click();
    EXPECT_EQ(session.desk.next_message(), "You have not created any photo lists yet.");
}

TEST(mnuEditSelections, opens_the_manager_and_leaves_the_source_of_the_collage_alone)
{
    saved_lists session;
    session.folder.write("data/piclists/last_photos.pls", "L /p/a.jpg\r\nL /p/b.jpg\r\n");
    session.main.selected_count = 2;
    session.desk.on_modal<frmPictureList>([&](frmPictureList & window) {
        expect_states(window, "cmdEdit^");
        session.main.txtPhotos.tag = "edited";
        session.main.selected_count = 9;
        window.cmdDone.click();
    });
    session.main.mnuEditSelections.click();
    EXPECT_EQ(session.main.txtPhotos.tag, "before");
    EXPECT_EQ(session.main.selected_count, 2);
    EXPECT_EQ(session.main.cmdPhotos.tag, "2");
}

TEST(mnuEditSelections, deleting_the_working_list_ends_the_selection)
{
    saved_lists session;
    session.folder.write("data/piclists/last_photos.pls", "L /p/a.jpg\r\n");
    session.main.selected_count = 1;
    session.desk.on_modal<frmPictureList>([&](frmPictureList & window) {
        window.lstPictures.select_text("last_photos");
        window.cmdDelete.click();
        window.cmdDone.click();
    });
    session.main.mnuEditSelections.click();
    EXPECT_EQ(session.main.selected_count, 0);
}
