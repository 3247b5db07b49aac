#include "tests/photos/photo_editor.h"

// ---- adding

TEST(frmPictures, photos_are_added_behind_and_gaps_close_up)
{
    editor session;
    session.edit(editing::saved_list, 3);
    session.cell(1).press(picture_key::remove);
    session.desk.will_choose_files(session.photos(10, 2));
    session.desk.on_pump(1, [&] {
        EXPECT_EQ(session.window.edit_mode, editing::added_photos);
        EXPECT_EQ(session.window.txtCounting.caption(), "Checking  " + session.photo(10) + "...");
        expect_states(session.window, "txtCounting^ cmdAdd_ cmdSave_ cmdCancel_ cmdHelp_");
        session.window.request_close();
        EXPECT_TRUE(session.window.loaded());
    });
    session.window.cmdAdd.click();
    EXPECT_EQ(session.grid(5), "0 2 10 11 . ");
    EXPECT_EQ(session.window.edit_mode, editing::saved_list);
    expect_states(session.window, "txtCounting_ cmdAdd^ cmdSave^ cmdCancel^ cmdHelp^");
    EXPECT_FALSE(file_exists(session.folder.at("data/piclists/_work_file.pls")));
    EXPECT_EQ(read_file(session.window.edit_list_path), session.list_of(3)) << "only saving touches the list";
}

TEST(frmPictures, three_more_photos_in_a_grid_of_59_add_one_and_tell_once)
{
    editor session;
    session.edit(editing::saved_list, 59);
    session.desk.will_choose_files(session.photos(100, 3));
    session.window.cmdAdd.click();
    EXPECT_EQ(session.desk.next_message(),
              "Photo list truncated to the first 60 photos.\r\n\r\nRemove some photos before adding more.");
    EXPECT_EQ(session.cell(59).tag, session.photo(100));
    EXPECT_TRUE(session.window.same_name_allowed);
}

TEST(frmPictures, one_more_photo_in_a_full_grid_is_refused)
{
    editor session;
    session.edit(editing::saved_list, 60);
    session.desk.will_choose_files({session.photo(100)});
    session.window.cmdAdd.click();
    EXPECT_TRUE(session.desk.next_message().starts_with("Photo list truncated"));
    EXPECT_EQ(session.cell(59).tag, session.photo(59));
}

TEST(frmPictures, a_cancelled_chooser_adds_nothing)
{
    editor session;
    session.edit(editing::saved_list, 2);
    session.desk.will_choose_files({});
    session.window.cmdAdd.click();
    EXPECT_EQ(session.grid(3), "0 1 . ");
}

TEST(frmPictures, adding_to_an_emptied_grid_enables_save_again)
{
    editor session;
    session.edit(editing::saved_list, 1);
    session.cell(0).press(picture_key::remove);
    session.desk.will_choose_files(session.photos(10, 1));
    session.window.cmdAdd.click();
    expect_states(session.window, "cmdSave+");
}

TEST(frmPictures, a_list_of_61_keeps_its_name_to_itself_after_adding_too)
{
    editor session;
    session.desk.keeps_messages = true;
    session.edit(editing::saved_list, 61);
    session.cell(0).press(picture_key::remove);
    session.desk.will_choose_files(session.photos(100, 1));
    session.window.cmdAdd.click();
    EXPECT_FALSE(session.window.same_name_allowed);
}

// ---- saving

TEST(frmPictures, a_selection_is_saved_under_its_own_name_without_a_question)
{
    editor session;
    session.edit(editing::selection, 3);
    session.cell(0).press(picture_key::remove);
    session.window.cmdSave.click();
    EXPECT_EQ(session.list(), "P 1.jpg L 2.jpg ");
    EXPECT_EQ(session.main.txtPhotos.tag, session.window.edit_list_path);
    EXPECT_EQ(session.main.cmdPhotos.tag, "2");
    EXPECT_EQ(session.main.selected_count, 2);
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.grid(4), ". . . . ");
}

TEST(frmPictures, a_saved_list_asks_for_its_name)
{
    editor session;
    session.edit(editing::saved_list, 3);
    session.cell(0).press(picture_key::remove);
    session.desk.will_answer(answer::cancel);
    session.window.cmdSave.click();
    EXPECT_TRUE(session.window.loaded());
    EXPECT_EQ(session.desk.questions.front().text,
              "\r\nDo you want to save the changes with the same name [Sea] ?");
    EXPECT_EQ(session.desk.questions.front().offered, answers::yes_no_cancel);
    session.desk.will_answer(answer::yes);
    session.window.cmdSave.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.list(), "P 1.jpg L 2.jpg ");
}

TEST(frmPictures, no_asks_for_another_name)
{
    editor session;
    session.edit(editing::saved_list, 1);
    session.main.txtPhotos.tag = "before";
    session.desk.will_answer(answer::no);
    session.desk.on_modal<frmPictureName>([](frmPictureName & name) { name.cmdCancel.click(); });
    session.window.cmdSave.click();
    EXPECT_TRUE(session.window.loaded());
    EXPECT_EQ(session.main.txtPhotos.tag, "before");
    session.desk.will_answer(answer::no);
    session.desk.on_modal<frmPictureName>([](frmPictureName & name) {
        name.txtName.set_text("Other");
        name.cmdOk.click();
    });
    session.window.cmdSave.click();
    EXPECT_EQ(session.list("Other"), "L 0.jpg ");
    EXPECT_EQ(session.main.txtPhotos.tag, session.folder.at("data/piclists/Other.pls"));
}

TEST(frmPictures, a_disk_that_is_full_leaves_list_and_grid_as_they_were)
{
    editor session;
    const std::string before = session.list_of(50);
    session.edit(editing::saved_list, before);
    session.desk.will_answer(answer::yes);
    {
        const full_disk full(500);
        EXPECT_THROW(session.window.cmdSave.click(), platform_error);
    }
    EXPECT_TRUE(session.window.loaded());
    EXPECT_EQ(read_file(session.window.edit_list_path), before);
    EXPECT_EQ(session.cell(49).tag, session.photo(49));
}

TEST(frmPictures, cancel_and_the_close_box_write_nothing)
{
    for (const bool by_button : {false, true}) {
        editor session;
        session.edit(editing::saved_list, 2);
        session.cell(0).press(picture_key::remove);
        if (by_button)
            session.window.cmdCancel.click();
        else
            session.window.request_close();
        EXPECT_FALSE(session.window.loaded());
        EXPECT_EQ(session.list(), "L 0.jpg L 1.jpg ");
    }
}

TEST(frmPictures, the_help_key_and_button_open_its_page)
{
    editor session;
    session.window.cmdHelp.click();
    session.window.on_key(key::f1);
    ASSERT_EQ(session.desk.opened_documents.size(), 2U);
    for (const std::string & page : session.desk.opened_documents)
        EXPECT_TRUE(page.ends_with("/help/edit_photos.htm"));
}
