#include "tests/photos/photo_editor.h"

namespace {

constexpr int left_of_next = 72;

}  // namespace

// ---- loading

TEST(frmPictures, shows_the_photos_of_a_list_each_in_its_orientation)
{
    editor session;
    session.edit(editing::saved_list, 3);
    EXPECT_EQ(session.grid(5), "0 1 2 . . ");
    EXPECT_EQ(session.cell(0).place(), (box{8, 24, 68, 51}));
    EXPECT_EQ(session.cell(1).place(), (box{72 + 16, 16, 51, 68}));
    EXPECT_EQ(session.cell(0).file(), session.folder.at("p/__thumbs/0.jpg"));
    EXPECT_EQ(session.cell(0).tool_tip(), session.photo(0));
    expect_states(session.window, "cmdSave+ txtCounting_");
    EXPECT_TRUE(session.window.same_name_allowed);
    EXPECT_EQ(session.window.selected_cell, -1);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(frmPictures, reads_lists_with_either_line_end_and_without_one)
{
    for (const char * end : {"\r\n", "\n"}) {
        editor session;
        session.edit(editing::saved_list, "L " + session.photo(0) + end + "P " + session.photo(1));
        EXPECT_EQ(session.grid(3), "0 1 . ");
    }
}

TEST(frmPictures, the_second_opening_starts_from_an_empty_grid)
{
    editor session;
    session.edit(editing::saved_list, 4);
    session.window.cmdCancel.click();
    session.edit(editing::saved_list, 1);
    EXPECT_EQ(session.grid(5), "0 . . . . ");
    EXPECT_EQ(session.cell(2).place(), (box{2 * 72 + 16, 16, 51, 68}));
}

TEST(frmPictures, tells_the_opener_how_far_it_is_and_keeps_it_from_being_used_meanwhile)
{
    editor session;
    session.main.working_list_path =
        session.folder.write("data/piclists/last_photos.pls", session.list_of(2));
    session.main.selected_count = 2;
    session.all.photo_list.load();
    session.desk.on_pump(1, [&] {
        EXPECT_EQ(session.all.photo_list.txtCounting.caption(), "Checking  " + session.photo(0) + "...");
        expect_states(session.all.photo_list, "txtCounting^ cmdEdit- cmdCancel- cmdDone-");
        session.all.photo_list.request_close();
        EXPECT_TRUE(session.all.photo_list.loaded());
    });
    session.desk.on_modal<frmPictures>([&](frmPictures & window) {
        EXPECT_EQ(window.edit_mode, editing::selection);
        EXPECT_EQ(window.edit_list_path, session.main.working_list_path);
        expect_states(session.all.photo_list, "cmdEdit+ cmdCancel+ cmdDone+");
        session.cell(0).press(picture_key::remove);
        window.cmdSave.click();
    });
    session.all.photo_list.cmdEdit.click();
    expect_states(session.all.photo_list, "txtCounting_ cmdEdit^");
    EXPECT_EQ(session.all.photo_list.lblCount.caption(), "Number of photos selected:   1");
    EXPECT_EQ(session.main.txtPhotos.tag, session.main.working_list_path);
}

TEST(frmPictures, a_list_of_61_shows_60_warns_and_can_t_be_saved_under_its_name)
{
    editor session;
    session.edit(editing::saved_list, 61);
    EXPECT_EQ(session.desk.next_message(),
              "There are more than 60 photos in this list.\r\n\r\nYou will need to save any changes to a new "
              "list.");
    EXPECT_EQ(session.cell(59).tag, session.photo(59));
    EXPECT_FALSE(session.window.same_name_allowed);
    session.desk.on_modal<frmPictureName>([](frmPictureName & name) {
        name.txtName.set_text("Sixty");
        name.cmdOk.click();
    });
    session.window.cmdSave.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.main.selected_count, 60);
    EXPECT_EQ(read_file(session.folder.at("data/piclists/Sea.pls")), session.list_of(61));
    EXPECT_TRUE(file_exists(session.folder.at("data/piclists/Sixty.pls")));
}

TEST(frmPictures, exactly_60_photos_are_no_reason_to_warn)
{
    editor session;
    session.edit(editing::saved_list, 60);
    EXPECT_TRUE(session.window.same_name_allowed);
}

TEST(frmPictures, a_photo_that_can_t_be_loaded_ends_the_filling_with_a_box)
{
    for (const char * bad : {"/gone/x.jpg", "/gone/x.bmp", ""}) {
        editor session;
        session.edit(editing::saved_list,
                     session.list_of(2) + "L " + bad + "\r\nL " + session.photo(2) + "\r\n");
        const std::string told = session.desk.next_message();
        EXPECT_TRUE(told.starts_with("CAUGHT AN ERROR File not found")) << told;
        EXPECT_NE(told.find(bad), std::string::npos);
        EXPECT_EQ(session.grid(4), "0 1 . . ");
        EXPECT_FALSE(session.window.same_name_allowed);
        EXPECT_EQ(session.desk.busy_depth, 0);
    }
}

TEST(frmPictures, a_list_whose_photos_are_all_gone_can_t_be_saved)
{
    editor session;
    session.desk.keeps_messages = true;
    session.edit(editing::saved_list, "L /gone/a.jpg\r\nL /gone/b.jpg\r\n");
    expect_states(session.window, "cmdSave- cmdAdd+");
}

TEST(frmPictures, a_list_that_can_t_be_read_is_named)
{
    editor session;
    session.window.edit_mode = editing::saved_list;
    session.window.edit_list_path = session.folder.at("data/piclists/gone.pls");
    session.window.load();
    EXPECT_NE(session.desk.next_message().find(session.window.edit_list_path), std::string::npos);
    expect_states(session.window, "cmdSave-");
}

TEST(frmPictures, photos_of_a_selection_that_can_t_be_loaded_stay_in_it)
{
    editor session;
    session.edit(editing::selection, session.list_of(2) + "L /gone/x.jpg\r\nL " + session.photo(2) + "\r\n");
    session.desk.next_message();
    session.popup(1);
    session.window.mnuMove.click();
    session.window.cmdSave.click();
    EXPECT_EQ(session.list(), "P 1.jpg L 0.jpg L x.jpg L 2.jpg ");
    EXPECT_EQ(session.main.selected_count, 4);
}

TEST(frmPictures, a_file_in_the_place_of_the_thumbnails_is_told_once)
{
    editor session;
    const std::string text = session.list_of(3);
    session.folder.write("p/__thumbs", "x");
    session.edit(editing::saved_list, text);
    EXPECT_EQ(session.desk.next_message(), "Conflicting file for thumb directory");
    EXPECT_EQ(session.grid(4), "0 1 2 . ");
    EXPECT_EQ(session.cell(0).file(), session.photo(0)) << "the photo stands in for its thumbnail";
}

// ---- arranging

TEST(frmPictures, a_drop_on_an_empty_cell_moves_the_photo_and_its_geometry)
{
    editor session;
    session.edit(editing::saved_list, 3);
    session.cell(0).drop(5 * left_of_next + 3, 80 + 7);
    EXPECT_EQ(session.grid(4), ". 1 2 . ");
    EXPECT_EQ(session.cell(15).tag, session.photo(0));
    EXPECT_EQ(session.cell(15).place(), (box{5 * 72 + 8, 80 + 24, 68, 51}));
    EXPECT_EQ(session.cell(15).file(), session.folder.at("p/__thumbs/0.jpg"));
}

TEST(frmPictures, a_drop_on_an_occupied_cell_its_own_or_outside_changes_nothing)
{
    editor session;
    session.edit(editing::saved_list, 3);
    session.cell(0).drop(left_of_next + 10, 10);
    session.cell(0).drop(10, 10);
    session.cell(0).drop(-10, 10);
    session.cell(0).drop(10, 5000);
    EXPECT_EQ(session.grid(4), "0 1 2 . ");
}

TEST(frmPictures, ctrl_and_an_arrow_move_a_photo_to_an_empty_cell_or_past_the_photo_in_it)
{
    editor session;
    session.edit(editing::saved_list, 3);
    session.cell(2).press(picture_key::right);
    EXPECT_EQ(session.grid(4), "0 1 . 2 ");
    session.cell(0).press(picture_key::right);
    EXPECT_EQ(session.grid(4), "1 0 . 2 ");
    session.cell(0).press(picture_key::up);
    session.cell(0).press(picture_key::left);
    EXPECT_EQ(session.grid(4), "1 0 . 2 ");
    session.cell(0).press(picture_key::down);
    EXPECT_EQ(session.cell(10).tag, session.photo(1));
}

TEST(frmPictures, remove_empties_a_cell_and_the_last_one_disables_save)
{
    editor session;
    session.edit(editing::saved_list, 2);
    session.popup(0);
    EXPECT_EQ(session.window.selected_cell, 0);
    session.window.mnuRemove.click();
    EXPECT_EQ(session.grid(3), ". 1 . ");
    EXPECT_EQ(session.cell(0).place(), (box{16, 16, 51, 68})) << "of portrait shape again";
    expect_states(session.window, "cmdSave+");
    session.cell(1).press(picture_key::remove);
    EXPECT_EQ(session.grid(3), ". . . ");
    expect_states(session.window, "cmdSave-");
}

TEST(frmPictures, insert_makes_a_gap_by_moving_photos_up_to_the_next_gap)
{
    editor session;
    session.edit(editing::saved_list, 5);
    session.cell(3).press(picture_key::remove);
    session.popup(1);
    session.window.mnuInsert.click();
    EXPECT_EQ(session.grid(6), "0 . 1 2 4 . ");
    session.popup(2);
    session.window.mnuInsert.click();
    EXPECT_EQ(session.grid(7), "0 . . 1 2 4 . ") << "a gap in front is of no use";
}

TEST(frmPictures, insert_needs_room_behind)
{
    editor session;
    session.edit(editing::saved_list, 60);
    session.popup(5);
    session.window.mnuInsert.click();
    EXPECT_EQ(session.desk.next_message(), "No space left to insert.  Remove some pictures to make room");
    EXPECT_EQ(session.cell(5).tag, session.photo(5));
}

TEST(frmPictures, move_up_swaps_a_photo_with_the_one_before_geometry_included)
{
    editor session;
    session.edit(editing::saved_list, 3);
    session.popup(1);
    session.window.mnuMove.click();
    EXPECT_EQ(session.grid(4), "1 0 2 . ");
    EXPECT_EQ(session.cell(0).place(), (box{16, 16, 51, 68}));
    EXPECT_EQ(session.cell(1).place(), (box{72 + 8, 24, 68, 51}));
    EXPECT_EQ(session.cell(0).file(), session.folder.at("p/__thumbs/1.jpg"));
}

TEST(frmPictures, move_up_is_disabled_for_the_first_cell_and_after_a_gap)
{
    editor session;
    session.edit(editing::saved_list, 4);
    int opened = 0;
    session.window.mnuPopup.on_pop_up = [&] { ++opened; };
    session.popup(0);
    expect_states(session.window, "mnuMove-");
    session.popup(1);
    expect_states(session.window, "mnuMove+");
    session.cell(2).press(picture_key::remove);
    session.popup(3);
    expect_states(session.window, "mnuMove-");
    EXPECT_EQ(opened, 3);
}

TEST(frmPictures, view_opens_the_photo_and_cancel_does_nothing)
{
    editor session;
    session.edit(editing::saved_list, 2);
    session.popup(1);
    session.window.mnuView.click();
    session.window.mnuCancel.click();
    EXPECT_EQ(session.desk.opened_documents, std::vector<std::string>{session.photo(1)});
    EXPECT_EQ(session.grid(3), "0 1 . ");
}
