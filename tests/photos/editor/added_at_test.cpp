#include "tests/photos/photo_editor.h"

TEST(add_photos_at, puts_photos_where_they_fall_and_moves_the_others_on)
{
    editor session;
    session.edit(editing::saved_list, 3);
    add_photos_at(session.main, session.photos(7, 2), 1);
    EXPECT_EQ(session.grid(6), "0 7 8 1 2 . ");
    EXPECT_EQ(session.cell(1).place(), (box{72 + 16, 16, 51, 68}));
    EXPECT_FALSE(session.window.checking);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(add_photos_at, fills_empty_cells_and_uses_gaps)
{
    editor session;
    session.edit(editing::saved_list, 4);
    clear_cell(session.window, 2);
    add_photos_at(session.main, session.photos(8, 1), 1);
    EXPECT_EQ(session.grid(5), "0 8 1 3 . ");
    add_photos_at(session.main, session.photos(9, 1), 6);
    EXPECT_EQ(session.grid(8), "0 8 1 3 . . 9 . ");
}

TEST(add_photos_at, puts_photos_that_fall_beside_the_grid_behind_the_last)
{
    editor session;
    session.edit(editing::saved_list, 2);
    add_photos_at(session.main, session.photos(5, 2), std::nullopt);
    EXPECT_EQ(session.grid(5), "0 1 5 6 . ");
}

TEST(add_photos_at, takes_the_first_free_cells_where_none_is_left_behind)
{
    editor session;
    session.edit(editing::saved_list, 60);
    clear_cell(session.window, 0);
    add_photos_at(session.main, session.photos(70, 1), 59);
    EXPECT_EQ(session.grid(2), "70 1 ");
    EXPECT_EQ(name_of(session.cell(59).tag), "59.jpg");
}

TEST(add_photos_at, tells_once_when_there_is_no_room_for_all)
{
    editor session;
    session.edit(editing::saved_list, 59);
    add_photos_at(session.main, session.photos(70, 3), 0);
    EXPECT_EQ(session.grid(2), "70 0 ");
    EXPECT_EQ(session.desk.next_message(), truncation_message());
}
