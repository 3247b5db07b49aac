#include "photos/chosen_photos.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/photos/photo_list_fixture.h"
#include "tests/small_files.h"

#include <filesystem>
#include <sys/stat.h>

TEST_F(photo_list_test, a_list_gives_its_photos_without_the_first_two_characters)
{
    list("L /x/a.jpg\r\nP /x/b c.jpg\nX-/x/d.jpg");
    get_photos(main);
    EXPECT_EQ(main.table.last_photo, 2);
    EXPECT_EQ(main.table[0], "/x/a.jpg");
    EXPECT_EQ(main.table[1], "/x/b c.jpg");
    EXPECT_EQ(main.table[2], "/x/d.jpg");
}

TEST_F(photo_list_test, paths_are_bytes)
{
    list("L /x/M\xC3\xBCller\xFF.jpg\r\n");
    get_photos(main);
    EXPECT_EQ(main.table[0], "/x/M\xC3\xBCller\xFF.jpg");
}

TEST_F(photo_list_test, at_most_1001_lines_are_read)
{
    std::string text;
    for (int i = 0; i < 1200; ++i)
        text += "L /x/" + std::to_string(i) + ".jpg\r\n";
    list(text);
    get_photos(main);
    EXPECT_EQ(main.table.last_photo, 1000);
    EXPECT_EQ(main.table[1000], "/x/1000.jpg");
}

TEST_F(photo_list_test, an_empty_list_is_an_empty_table)
{
    list("");
    get_photos(main);
    EXPECT_EQ(main.table.last_photo, -1);
}

TEST_F(photo_list_test, a_list_that_is_not_there_leaves_one_entry_as_it_is)
{
    fill_table({"/x/a.jpg", "/x/b.jpg"});
    for (const std::string & path : {folder.at("none.pls"), folder.path(), std::string()}) {
        main.table.last_photo = 1;
        main.txtPhotos.tag = path;
        get_photos(main);
        EXPECT_EQ(main.table.last_photo, 0) << path;
        EXPECT_EQ(main.table[0], "/x/a.jpg") << path;
    }
}

TEST_F(photo_list_test, a_list_with_a_photo_beyond_16_bits_is_saved)
{
    const std::string wide = folder.write("wide.jpg", flat_jpeg(32768, 8, {90}, adobe_mark::absent)),
                      high = photo("high.jpg", 30, 40);
    folder.write("piclists/last_photos.pls", "P " + wide + "\r\nL " + high + "\r\n");
    save_last_list(main, folder.at("piclists/mine.pls"));
    EXPECT_EQ(read_file(folder.at("piclists/mine.pls")), "L " + wide + "\r\nP " + high + "\r\n");
}

TEST_F(photo_list_test, a_folder_gives_its_jpg_files_in_any_case)
{
    for (const char * name : {"A.JPG", "b.Jpg", "c.jpeg", "d.png", "e.jpg.txt", "jpg", "inner/f.jpg"})
        folder.write(std::string("photos/") + name, "");
    photos_of_folder(main, folder.at("photos"));
    EXPECT_EQ(taken(), (std::vector<std::string>{folder.at("photos/A.JPG"), folder.at("photos/b.Jpg")}));
}

TEST_F(photo_list_test, a_folder_gives_its_photos_in_the_order_of_their_names)
{
    std::vector<std::string> expected;
    for (int i = 1; i <= 60; ++i)
        expected.push_back(folder.at("photos/" + std::string(i % 2 == 0 ? "img" : "IMG") + " " +
                                     std::to_string(i) + ".jpg"));
    // Made in another order than the one asked for: a folder may remember it.
    for (std::size_t i = 0; i < expected.size(); ++i)
        folder.write("photos/" + name_of(expected[i * 37 % expected.size()]), "");
    photos_of_folder(main, folder.at("photos"));
    EXPECT_EQ(taken(), expected);
}

TEST_F(photo_list_test, a_folder_gives_499_photos_at_most)
{
    for (int i = 0; i < 510; ++i)
        folder.write("photos/" + std::to_string(i) + ".jpg", "");
    photos_of_folder(main, folder.at("photos"));
    EXPECT_EQ(main.table.last_photo, 498);
    EXPECT_EQ(main.table[498], folder.at("photos/498.jpg"));
    const int more = main.table.beyond;
    EXPECT_EQ(more, static_cast<int>(files_in(folder.at("photos")).size()) - 499);
    EXPECT_GT(more, 0);
    folder.write("photos/one_more.jpg", "");
    look_again_at_folder(main, folder.at("photos"));
    EXPECT_EQ(main.table.beyond, more + 1);
    main.txtPhotos.tag = folder.write("list.pls", "P /x/a.jpg\r\n");
    get_photos(main);
    EXPECT_EQ(main.table.beyond, 0);
}

TEST_F(photo_list_test, a_folder_without_photos_leaves_an_empty_table_and_no_message)
{
    desk.will_choose_folder(folder.path());
    EXPECT_EQ(get_photo_folder(main), folder.path());
    EXPECT_EQ(main.table.last_photo, -1);
}

TEST_F(photo_list_test, a_cancelled_folder_chooser_leaves_999)
{
    desk.will_choose_folder(std::nullopt);
    EXPECT_EQ(get_photo_folder(main), "");
    EXPECT_EQ(main.table.last_photo, 999);
}

TEST_F(photo_list_test, an_empty_answer_of_the_folder_chooser_changes_nothing)
{
    fill_table({"/x/a.jpg"});
    desk.will_choose_folder("");
    EXPECT_EQ(get_photo_folder(main), "");
    EXPECT_EQ(main.table.last_photo, 0);
}

TEST_F(photo_list_test, a_selection_goes_to_the_working_list)
{
    std::filesystem::create_directory(folder.at("piclists"));
    desk.will_choose_files({"/x/a.jpg", "/x/b.png"});
    get_selected_photos(main);
    EXPECT_EQ(main.txtPhotos.tag, folder.at("piclists/last_photos.pls"));
    desk.will_choose_files({"/y/c.jpg"});
    get_selected_photos(main);
    EXPECT_EQ(read_file(main.txtPhotos.tag), "L /x/a.jpg\r\nL /x/b.png\r\nL /y/c.jpg\r\n");
    EXPECT_EQ(main.selected_count, 3);
    EXPECT_EQ(main.cmdPhotos.tag, "3");
    EXPECT_FALSE(main.photo_choice_cancelled);
    EXPECT_EQ(main.photo_folder, "/y");
}

TEST_F(photo_list_test, a_selection_is_added_to_the_list_that_is_chosen)
{
    list("P /x/a.jpg\r\n");
    desk.will_choose_files({"/x/b.jpg"});
    get_selected_photos(main);
    EXPECT_EQ(read_file(folder.at("list.pls")), "P /x/a.jpg\r\nL /x/b.jpg\r\n");
}

TEST_F(photo_list_test, a_cancelled_selection_is_marked_and_writes_nothing)
{
    desk.will_choose_files({});
    get_selected_photos(main);
    EXPECT_TRUE(main.photo_choice_cancelled);
    EXPECT_EQ(main.txtPhotos.tag, "");
    EXPECT_EQ(main.selected_count, 0);
}

TEST_F(photo_list_test, a_selection_that_can_not_be_written_is_not_counted)
{
    try {
        append_to_list(main, {"/x/a.jpg"});  // there is no folder piclists
        FAIL() << "nothing was raised";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.path, joined(folder.path(), "piclists/last_photos.pls"));
    }
    EXPECT_EQ(main.selected_count, 0);
}

TEST_F(photo_list_test, the_working_list_is_saved_with_measured_orientations)
{
    const std::string wide = photo("wide.jpg", 40, 30), high = photo("high.jpg", 30, 40),
                      square = photo("square.jpg", 30, 30), text = folder.write("text.jpg", "no picture");
    folder.write("piclists/last_photos.pls",
                 "L " + high + "\r\nP " + wide + "\nL " + square + "\r\nP " + text + "\r\nP /gone.jpg");
    main.selected_count = 5;
    set_photo_source_kind(main, photo_source::selection);
    save_last_list(main, folder.at("piclists/mine.pls"));
    EXPECT_EQ(read_file(folder.at("piclists/mine.pls")),
              "P " + high + "\r\nL " + wide + "\r\nL " + square + "\r\nL " + text + "\r\nL /gone.jpg\r\n");
    EXPECT_FALSE(file_exists(last_photos_path(main)));
    EXPECT_EQ(main.selected_count, 0);
    EXPECT_EQ(main.lblPhotos.tag, "0");
    EXPECT_EQ(desk.busy_depth, 0);
}

TEST_F(photo_list_test, without_a_working_list_there_is_nothing_to_save)
{
    save_last_list(main, folder.at("piclists/mine.pls"));
    EXPECT_EQ(desk.next_message(), "No picture list to be saved");
    EXPECT_FALSE(file_exists(folder.at("piclists/mine.pls")));
    EXPECT_FALSE(check_last_list(main));
    EXPECT_EQ(desk.next_message(), "No picture list to be saved");
}

TEST_F(photo_list_test, a_list_that_can_not_be_saved_stays_the_working_list)
{
    folder.write("piclists/last_photos.pls", "L /gone.jpg\r\n");
    EXPECT_THROW(save_last_list(main, joined(folder.path(), "none/mine.pls")), platform_error);
    EXPECT_TRUE(file_exists(last_photos_path(main)));
    EXPECT_EQ(desk.busy_depth, 0);
}

TEST_F(photo_list_test, removing_moves_the_later_photos_down)
{
    fill_table({"a", "b", "c", "d"});
    remove_photo(main, 1);
    EXPECT_EQ(main.table.last_photo, 3);
    EXPECT_EQ(main.table[0] + main.table[1] + main.table[2], "acd");
}

TEST_F(photo_list_test, the_user_is_asked_once_whether_to_shuffle)
{
    fill_table({"a", "b", "c", "d"});
    desk.will_answer(answer::no);
    ask_reshuffle(main);
    ask_reshuffle(main);
    EXPECT_EQ(table(), "a b c d ");
    ASSERT_EQ(desk.questions.size(), 1u);
    EXPECT_EQ(desk.questions[0].title, "S h u f f l e   t h e   P h o t o s");
    EXPECT_EQ(desk.questions[0].text,
              "We are going to use each of your photos more than once in this collage.\r\n\r\n"
              "Do you want to shuffle the photos before using them again?");
    EXPECT_EQ(desk.questions[0].offered, answers::yes_no);
}

TEST_F(photo_list_test, a_yes_shuffles_at_every_wrap)
{
    fill_table({"a", "b", "c", "d"});
    desk.will_answer(answer::yes);
    ask_reshuffle(main);
    EXPECT_EQ(table(), "c a d b ");
    main.random = listed({0.0, 0.0, 0.0, 0.0});
    int reseeded = 0;
    main.random.reseed = [&] { ++reseeded; };
    ask_reshuffle(main);
    EXPECT_EQ(table(), "c a d b ");
    EXPECT_EQ(reseeded, 1);
    EXPECT_EQ(desk.questions.size(), 1u);
}
