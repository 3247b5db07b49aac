#include "tests/photos/photo_choice.h"

TEST(cmdPhotos, a_new_choice_is_counted_and_previewed)
{
    photo_choice session;
    session.finish();
    session.main.table.reshuffle_choice = photo_table::reshuffle::yes;
    session.main.photo_choice_cancelled = true;
    session.desk.will_choose_folder(session.folder.at("album"));
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & dialog) {
        EXPECT_FALSE(session.main.photo_choice_cancelled);
        dialog.cmdCards.click();
    });
    EXPECT_EQ(session.previews_of([&] { session.main.cmdPhotos.click(); }), 1);
    EXPECT_EQ(session.main.table.reshuffle_choice, photo_table::reshuffle::not_asked);
    EXPECT_EQ(session.desk.shown_windows, (std::vector<std::string>{"frmSelectPhotos", "frmPhotoCnt"}));
    EXPECT_EQ(session.desk.busy_depth, 0);
    EXPECT_EQ(session.main.table.last_photo, 1);
}

TEST(cmdPhotos, a_selection_is_read_from_its_list)
{
    photo_choice session;
    session.finish();
    session.desk.will_choose_files({session.folder.at("album/A.JPG"), "/p/gone.jpg"});
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & dialog) { dialog.optSelect.select(); });
    session.main.cmdPhotos.click();
    EXPECT_EQ(session.main.table.last_photo, 0) << "a photo that is gone is dropped";
    EXPECT_EQ(name_of(session.main.table[0]), "A.JPG");
}

TEST(cmdPhotos, without_a_choice_nothing_is_counted_or_drawn)
{
    photo_choice session;
    session.finish();
    session.main.table.reshuffle_choice = photo_table::reshuffle::yes;
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & dialog) { dialog.cmdCancel.click(); });
    EXPECT_EQ(session.previews_of([&] { session.main.cmdPhotos.click(); }), 0);
    EXPECT_EQ(session.main.table.reshuffle_choice, photo_table::reshuffle::yes);
}
