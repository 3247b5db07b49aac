#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/photos/photo_choice.h"

#include <filesystem>

TEST(frmSelectPhotos, without_a_choice_it_offers_the_folder_and_no_ok)
{
    photo_choice session;
    session.main.table.last_photo = 4;
    session.open([&](frmSelectPhotos & dialog) {
        expect_states(dialog,
                      "optFolder1 optList0 optSelect0 optChange_ optUnseen_ cmdCards+ cmdCards^ "
                      "txtCards^ cmdOk-");
        EXPECT_EQ(dialog.txtCards.text(), "");
        EXPECT_EQ(dialog.txtCards.place().left, 72);
        EXPECT_EQ(dialog.cmdCards.place().left, 72);
        EXPECT_EQ(dialog.saved_last_photo, 4);
        EXPECT_FALSE(dialog.skip_next_click);
    });
}

TEST(frmSelectPhotos, a_folder_in_use_is_shown_and_can_be_kept)
{
    photo_choice session;
    session.have_chosen(photo_source::folder, "/p/summer", "/p/summer");
    session.open([&](frmSelectPhotos & dialog) {
        expect_states(dialog, "optFolder1 cmdOk+ cmdCards^");
        EXPECT_EQ(dialog.txtCards.text(), "/p/summer");
        dialog.cmdOk.click();
        EXPECT_FALSE(dialog.loaded());
    });
    EXPECT_EQ(session.choice(), "1|Folder:|/p/summer|summer");
    EXPECT_FALSE(session.main.photo_choice_cancelled);
}

TEST(frmSelectPhotos, a_list_in_use_is_shown_and_can_be_kept)
{
    photo_choice session;
    session.have_chosen(photo_source::list, "Summer", "/d/piclists/Summer.pls");
    session.open([&](frmSelectPhotos & dialog) {
        expect_states(dialog, "optList1 cmdOk+ cmdCards^ txtCards^");
        EXPECT_EQ(dialog.txtCards.text(), "Summer");
        EXPECT_EQ(dialog.txtCards.place().left, 102);
        EXPECT_FALSE(dialog.skip_next_click);
        dialog.cmdOk.click();
    });
    EXPECT_EQ(session.choice(), "2|Photo List:|Summer|Summer.pls");
}

TEST(frmSelectPhotos, a_selection_in_use_selects_no_option_that_is_seen)
{
    photo_choice session;
    session.have_selected(3);
    session.main.table.last_photo = 2;
    session.open([&](frmSelectPhotos & dialog) {
        expect_states(dialog,
                      "optUnseen1 optUnseen_ optFolder0 optList0 optSelect0 optChange^ txtCards_ cmdCards_ "
                      "cmdCards- cmdOk+");
        EXPECT_FALSE(dialog.skip_next_click);
        dialog.cmdOk.click();
    });
    EXPECT_EQ(session.choice(), "3|Selected:|3 selected photos|last_photos.pls");
    EXPECT_FALSE(session.main.photo_choice_cancelled);
}

TEST(frmSelectPhotos, ok_with_a_selection_that_has_gone_is_no_choice)
{
    photo_choice session;
    session.have_chosen(photo_source::selection, "3 selected photos", "/d/piclists/last_photos.pls");
    session.open([&](frmSelectPhotos & dialog) {
        expect_states(dialog, "optChange_");
        dialog.cmdOk.click();
        EXPECT_FALSE(dialog.loaded());
    });
    EXPECT_TRUE(session.main.photo_choice_cancelled);
}

TEST(frmSelectPhotos, ok_sees_what_came_and_went_in_the_folder_in_use)
{
    photo_choice session;
    const std::string album = joined(session.folder.path(), "album");
    photos_of_folder(session.main, album);
    session.have_chosen(photo_source::folder, album, album);
    ASSERT_EQ(session.main.table.last_photo, 1);
    std::swap(session.main.table[0], session.main.table[1]);
    const auto photos_after_ok = [&] {
        session.open([&](frmSelectPhotos & dialog) { dialog.cmdOk.click(); });
        std::string names;
        for (int i = 0; i <= session.main.table.last_photo; ++i)
            names += name_of(session.main.table[i]) + " ";
        return names;
    };
    EXPECT_EQ(photos_after_ok(), "b.Jpg A.JPG ") << "the same photos keep their order";
    session.folder.write("album/ab.jpg", "new");
    EXPECT_EQ(photos_after_ok(), "A.JPG ab.jpg b.Jpg ");
    std::filesystem::remove(session.folder.at("album/A.JPG"));
    EXPECT_EQ(photos_after_ok(), "ab.jpg b.Jpg ");
    // With the folder gone the counting names them.
    std::filesystem::remove_all(album);
    EXPECT_EQ(photos_after_ok(), "ab.jpg b.Jpg ");
}

TEST(frmSelectPhotos, browse_takes_the_jpg_files_of_a_folder_and_closes)
{
    photo_choice session;
    session.desk.will_choose_folder(session.folder.at("album"));
    session.open([&](frmSelectPhotos & dialog) {
        dialog.cmdCards.click();
        EXPECT_FALSE(dialog.loaded());
    });
    EXPECT_EQ(session.choice(), "1|Folder:|" + session.folder.at("album") + "|album");
    EXPECT_EQ(session.main.table.last_photo, 1);
}

TEST(frmSelectPhotos, a_cancelled_folder_chooser_leaves_the_dialog_open_and_the_table_as_it_was)
{
    photo_choice session;
    session.have_chosen(photo_source::folder, "/p/summer", "/p/summer");
    session.main.table.last_photo = 6;
    session.desk.will_choose_folder(std::nullopt);
    session.open([&](frmSelectPhotos & dialog) {
        dialog.cmdCards.click();
        EXPECT_TRUE(dialog.loaded());
        EXPECT_EQ(session.main.table.last_photo, 6);
        EXPECT_EQ(dialog.txtCards.text(), "/p/summer");
        expect_states(dialog, "cmdOk+");
        dialog.cmdOk.click();
    });
    EXPECT_EQ(session.choice(), "1|Folder:|/p/summer|summer");
}

TEST(frmSelectPhotos, photo_folder_after_a_list_opens_the_chooser_at_once)
{
    photo_choice session;
    session.have_chosen(photo_source::list, "Summer", "/d/piclists/Summer.pls");
    session.main.table.last_photo = 6;
    session.desk.will_choose_folder(std::nullopt);
    session.open([&](frmSelectPhotos & dialog) {
        dialog.optFolder.select();
        EXPECT_TRUE(dialog.loaded());
        EXPECT_EQ(dialog.txtCards.text(), "");
        EXPECT_EQ(dialog.txtCards.place().left, 72);
        EXPECT_EQ(session.main.table.last_photo, 6);
        expect_states(dialog, "cmdOk-");
        dialog.cmdCancel.click();
    });
    EXPECT_EQ(session.main.lblPhotos.tag, "2");
    EXPECT_EQ(session.main.txtPhotos.tag, "/d/piclists/Summer.pls");
    EXPECT_TRUE(session.main.photo_choice_cancelled);
}

TEST(frmSelectPhotos, a_folder_without_photos_is_taken_without_a_word)
{
    photo_choice session;
    std::filesystem::create_directory(session.folder.at("empty"));
    session.desk.will_choose_folder(session.folder.at("empty"));
    session.open([&](frmSelectPhotos & dialog) { dialog.cmdCards.click(); });
    EXPECT_EQ(session.main.table.last_photo, -1);
    EXPECT_EQ(session.main.lblPhotos.tag, "1");
}

TEST(frmSelectPhotos, a_folder_that_can_t_be_read_is_named_and_nothing_is_lost)
{
    photo_choice session;
    session.have_chosen(photo_source::folder, "/p/summer", "/p/summer");
    session.main.table.last_photo = 6;
    session.main.table[6] = "/p/summer/g.jpg";
    const std::string gone = session.folder.at("gone");
    session.desk.will_choose_folder(gone);
    session.open([&](frmSelectPhotos & dialog) {
        try {
            dialog.cmdCards.click();
            ADD_FAILURE() << "no error";
        } catch (const platform_error & error) {
            EXPECT_EQ(error.path, gone);
        }
        EXPECT_TRUE(dialog.loaded());
        EXPECT_EQ(dialog.txtCards.text(), "/p/summer");
        EXPECT_EQ(session.main.table.last_photo, 6);
        EXPECT_EQ(session.main.table[6], "/p/summer/g.jpg");
        dialog.cmdOk.click();
    });
    EXPECT_EQ(session.choice(), "1|Folder:|/p/summer|summer");
}

TEST(frmSelectPhotos, of_1200_photos_in_a_folder_499_are_taken)
{
    photo_choice session;
    for (int i = 0; i < 1200; ++i)
        session.folder.write("many/" + std::to_string(i) + ".jpg", "");
    session.desk.will_choose_folder(session.folder.at("many"));
    session.open([&](frmSelectPhotos & dialog) { dialog.cmdCards.click(); });
    EXPECT_EQ(session.main.table.last_photo, 498);
}

TEST(frmSelectPhotos, selecting_photos_takes_them_into_the_working_list)
{
    photo_choice session;
    bool was_visible = true;
    session.desk.will_choose_files({"/p/a.jpg", "/p/b.png"});
    session.open([&](frmSelectPhotos & dialog) {
        dialog.on_shown_change = [&] { was_visible = dialog.visible(); };
        dialog.optSelect.select();
        dialog.on_shown_change = nullptr;
        EXPECT_FALSE(dialog.loaded());
    });
    EXPECT_FALSE(was_visible);
    EXPECT_EQ(session.choice(), "3|Selected:|2 selected photos|last_photos.pls");
    EXPECT_EQ(read_file(session.folder.at("data/piclists/last_photos.pls")), "L /p/a.jpg\r\nL /p/b.png\r\n");
    EXPECT_FALSE(session.main.photo_choice_cancelled);
}

TEST(frmSelectPhotos, the_selection_at_hand_is_taken_without_a_chooser)
{
    photo_choice session;
    session.have_selected(4);
    session.have_chosen(photo_source::folder, "/p/summer", "/p/summer");
    session.open([&](frmSelectPhotos & dialog) { dialog.optSelect.select(); });
    EXPECT_EQ(session.choice(), "3|Selected:|4 selected photos|last_photos.pls");
}

TEST(frmSelectPhotos, a_cancelled_selection_shows_the_dialog_again_without_ok)
{
    photo_choice session;
    session.have_chosen(photo_source::list, "Summer", "/d/piclists/Summer.pls");
    session.desk.will_choose_files({});
    session.open([&](frmSelectPhotos & dialog) {
        dialog.optSelect.select();
        EXPECT_TRUE(dialog.loaded());
        EXPECT_TRUE(dialog.visible());
        EXPECT_TRUE(session.main.photo_choice_cancelled);
        expect_states(dialog, "optSelect0 cmdOk- txtCards_ cmdCards_");
        session.desk.will_choose_folder(session.folder.at("album"));
        dialog.optFolder.select();
    });
    EXPECT_EQ(session.choice(), "1|Folder:|" + session.folder.at("album") + "|album");
    EXPECT_FALSE(session.main.photo_choice_cancelled) << "a later choice counts";
}

TEST(frmSelectPhotos, backing_out_after_a_cancelled_selection_leaves_the_former_list_in_place)
{
    photo_choice session;
    session.have_chosen(photo_source::list, "Summer", "/d/piclists/Summer.pls");
    session.desk.will_choose_files({});
    session.open([&](frmSelectPhotos & dialog) {
        dialog.optSelect.select();
        dialog.request_close();
        EXPECT_FALSE(dialog.loaded());
    });
    EXPECT_EQ(session.main.lblPhotos.tag, "2");
    EXPECT_EQ(session.main.txtPhotos.tag, "/d/piclists/Summer.pls");
    EXPECT_TRUE(session.main.photo_choice_cancelled);
}

TEST(frmSelectPhotos, a_working_list_that_can_t_be_written_shows_the_dialog_again)
{
    photo_choice session;
    std::filesystem::create_directory(session.folder.at("data/piclists/last_photos.pls"));
    session.desk.will_choose_files({"/p/a.jpg"});
    session.open([&](frmSelectPhotos & dialog) {
        EXPECT_THROW(dialog.optSelect.select(), platform_error);
        EXPECT_TRUE(dialog.visible());
        EXPECT_EQ(session.main.selected_count, 0);
    });
}

TEST(frmSelectPhotos, changing_the_selection_opens_its_window)
{
    photo_choice session;
    session.have_selected(3);
    session.desk.on_modal<frmPhotoList>([&](frmPhotoList & list) {
        EXPECT_FALSE(session.dialog.visible());
        session.desk.will_choose_files({"/p/x.jpg"});
        list.cmdPhotos.click();
        list.cmdDone.click();
    });
    session.main.photo_choice_cancelled = false;
    session.dialog.load();
    session.dialog.optChange.select();
    EXPECT_FALSE(session.dialog.loaded());
    EXPECT_EQ(session.choice(), "3|Selected:|4 selected photos|last_photos.pls");
}

TEST(frmSelectPhotos, cancelling_the_change_is_no_choice)
{
    photo_choice session;
    session.have_selected(3);
    session.desk.on_modal<frmPhotoList>([](frmPhotoList & list) { list.cmdCancel.click(); });
    session.dialog.load();
    session.dialog.optChange.select();
    EXPECT_FALSE(session.dialog.loaded());
    EXPECT_TRUE(session.main.photo_choice_cancelled);
    EXPECT_EQ(session.choice(), "3||3 selected photos|last_photos.pls");
}

TEST(frmSelectPhotos, done_without_photos_falls_back_to_the_folder)
{
    photo_choice session;
    session.have_selected(3);
    session.desk.on_modal<frmPhotoList>([](frmPhotoList & list) {
        list.cmdClear.click();
        list.cmdDone.click();
    });
    session.dialog.load();
    session.dialog.optChange.select();
    EXPECT_TRUE(session.dialog.loaded());
    EXPECT_TRUE(session.dialog.visible());
    expect_states(session.dialog, "optFolder1 optChange_ txtCards^ cmdCards^ cmdCards+ cmdOk-");
    EXPECT_FALSE(session.dialog.skip_next_click);
    EXPECT_EQ(session.main.txtPhotos.tag, "");
}

TEST(frmSelectPhotos, the_help_key_and_button_open_its_page)
{
    photo_choice session;
    session.dialog.cmdHelp.click();
    session.dialog.on_key(key::f1);
    ASSERT_EQ(session.desk.opened_documents.size(), 2U);
    for (const std::string & page : session.desk.opened_documents)
        EXPECT_TRUE(page.ends_with("/help/select_photos.htm"));
}
