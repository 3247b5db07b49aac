#include "photos/prepared_photos.h"

#include "intake/jpeg_header.h"
#include "photos/dropped_photos.h"
#include "photos/lists/working_list.h"
#include "support/files/text_file.h"
#include "tests/jpeg_files.h"
#include "tests/photos/photo_list_fixture.h"

#include <filesystem>

namespace {

// A photo that lies on its side, 48 by 32 as it is stored.
std::string turned_jpeg(int quality)
{
    const std::string block("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 26);
    return jpeg_of(
        {.quality = quality, .markers = {{.code = 0xE1, .bytes = std::string("Exif\0\0", 6) + block}}}, 48,
        32);
}

struct prepared_photos_test : photo_list_test {
    const std::string photos = folder.at("photos");

    prepared_photos_test()
    {
        // The decoder lies beside these tests.
        main.install_folder = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
        std::filesystem::create_directory(folder.at("piclists"));
        folder.write("photos/1 upright.jpg", jpeg_of({}, 40, 32));
        folder.write("photos/2 turned.jpg", turned_jpeg(80));
        folder.write("photos/3 other name.jpeg", jpeg_of({}, 64, 32));
        folder.write("photos/4 damaged.png", "\x89PNG\r\n\x1A\n and no more");
    }
    // The folder of the working list was chosen.
    void choose_folder(answer given)
    {
        desk.will_choose_folder(photos);
        desk.will_answer(given);
        EXPECT_EQ(get_photo_folder(main), photos);
    }
};

picture_size size_of(const std::string & path)
{
    return read_jpeg_header(bytes_of_text(read_file(path))).value().size;
}

}  // namespace

TEST_F(prepared_photos_test, asks_once_with_the_numbers_of_the_folder)
{
    choose_folder(answer::no);
    ASSERT_EQ(desk.questions.size(), 1U);
    EXPECT_EQ(desk.questions[0].text,
              "3 of the 4 photos are turned or in another format. Prepare copies that fit?");
    EXPECT_EQ(desk.questions[0].on_enter, answer::yes);
}

TEST_F(prepared_photos_test, speaks_of_one_photo_as_one)
{
    EXPECT_EQ(question_of_copies(1, 40),
              "1 of the 40 photos is turned or in another format. Prepare a copy that fits?");
    EXPECT_EQ(question_of_copies(12, 40),
              "12 of the 40 photos are turned or in another format. Prepare copies that fit?");
}

TEST_F(prepared_photos_test, prepares_without_a_question_what_is_dropped)
{
    const dropped_photos found = told_photos_of_drop(
        main,
        {.paths = {photos + "/1 upright.jpg", photos + "/2 turned.jpg", photos + "/3 other name.jpeg"},
         .elsewhere = {}},
        998);
    EXPECT_TRUE(desk.questions.empty());
    ASSERT_EQ(found.photos.size(), 3U);
    EXPECT_EQ(found.photos[0], photos + "/1 upright.jpg");
    EXPECT_EQ(size_of(found.photos[1]).width, 32);  // upright now
    EXPECT_NE(found.photos[2], photos + "/3 other name.jpeg");
}

TEST_F(prepared_photos_test, takes_a_dropped_folder_that_needs_nothing_as_a_folder)
{
    for (const char * name : {"2 turned.jpg", "3 other name.jpeg", "4 damaged.png"})
        delete_file(photos + "/" + name);
    EXPECT_EQ(told_photos_of_drop(main, {.paths = {photos}, .elsewhere = {}}, 998).folder, photos);
}

TEST_F(prepared_photos_test, leaves_all_as_it_was_after_a_no)
{
    choose_folder(answer::no);
    EXPECT_EQ(table(), "1 upright.jpg 2 turned.jpg ");
    EXPECT_EQ(main.table[1], photos + "/2 turned.jpg");
    EXPECT_FALSE(folder_exists(folder.at("prepared")));
}

TEST_F(prepared_photos_test, takes_copies_in_the_places_of_their_photos_after_a_yes)
{
    const std::string original = read_file(photos + "/2 turned.jpg");
    choose_folder(answer::yes);
    EXPECT_EQ(table(), "1 upright.jpg 2 turned.jpg 3 other name.jpg ");
    EXPECT_EQ(main.table[0], photos + "/1 upright.jpg");
    EXPECT_TRUE(is_under(main.table[1], folder.at("prepared")));
    EXPECT_EQ(size_of(main.table[1]), (picture_size{.width = 32, .height = 48}));
    EXPECT_EQ(read_file(photos + "/2 turned.jpg"), original);
    EXPECT_EQ(desk.next_message(), "No copy can be made of these photos; they are left out:\r\n\r\n" +
                                       photos + "/4 damaged.png: it is damaged or cut short");
    EXPECT_EQ(desk.shown_windows, std::vector<std::string>{"frmPhotoCnt"});
    EXPECT_EQ(desk.hidden_windows, std::vector<std::string>{"frmPhotoCnt"});
    EXPECT_EQ(desk.busy_depth, 0);
}

TEST_F(prepared_photos_test, asks_nothing_where_every_photo_fits)
{
    folder.write("others/a.jpg", jpeg_of({}, 40, 32));
    folder.write("others/b.txt", "no photo");
    desk.will_choose_folder(folder.at("others"));
    get_photo_folder(main);
    EXPECT_TRUE(desk.questions.empty());
    EXPECT_EQ(table(), "a.jpg ");
}

TEST_F(prepared_photos_test, leaves_a_damaged_photo_that_a_collage_would_name_to_the_collage)
{
    folder.write("photos/5 cut.jpg", jpeg_of({}, 40, 32).substr(0, 30));
    choose_folder(answer::yes);
    EXPECT_EQ(table(), "1 upright.jpg 2 turned.jpg 3 other name.jpg 5 cut.jpg ");
    desk.next_message();
}

TEST_F(prepared_photos_test, offers_copies_of_files_that_were_chosen)
{
    desk.will_choose_files({photos + "/2 turned.jpg", photos + "/1 upright.jpg"});
    desk.will_answer(answer::yes);
    get_selected_photos(main);
    get_photos(main);
    EXPECT_EQ(desk.questions[0].text,
              "1 of the 2 photos is turned or in another format. Prepare a copy that fits?");
    EXPECT_EQ(size_of(main.table[0]), (picture_size{.width = 32, .height = 48}));
    EXPECT_EQ(main.table[1], photos + "/1 upright.jpg");
    EXPECT_EQ(main.photo_folder, photos);
}

TEST_F(prepared_photos_test, offers_copies_of_a_folder_for_the_list)
{
    main.working_list_path = folder.at("piclists/last_photos.pls");
    desk.will_choose_folder(photos);
    desk.will_answer(answer::yes);
    folder_of_photos(main);
    EXPECT_EQ(main.selected_count, 3);
    desk.next_message();
}

TEST_F(prepared_photos_test, goes_on_without_copies_when_the_small_window_is_closed)
{
    desk.on_breath = [this] {
        if (all.photo_count.on_query_unload)
            all.photo_count.on_query_unload();
    };
    choose_folder(answer::yes);
    EXPECT_EQ(table(), "1 upright.jpg 2 turned.jpg ");
    EXPECT_EQ(main.table[1], photos + "/2 turned.jpg");
}

TEST_F(prepared_photos_test, prepares_what_came_to_a_folder_with_copies_when_it_is_looked_at_again)
{
    delete_file(photos + "/4 damaged.png");
    choose_folder(answer::yes);
    folder.write("photos/5 came.jpeg", jpeg_of({.quality = 60}, 64, 32));
    delete_file(photos + "/2 turned.jpg");
    look_again_at_folder(main, photos);
    EXPECT_EQ(table(), "1 upright.jpg 3 other name.jpg 5 came.jpg ");
    EXPECT_EQ(desk.questions.size(), 1U);
    EXPECT_TRUE(is_under(main.table[2], folder.at("prepared")));
}

TEST_F(prepared_photos_test, keeps_the_copies_in_use_when_the_user_does_not_wait_for_new_ones)
{
    delete_file(photos + "/4 damaged.png");
    choose_folder(answer::yes);
    folder.write("photos/5 came.jpeg", jpeg_of({.quality = 60}, 64, 32));
    desk.on_breath = [this] {
        if (all.photo_count.on_query_unload)
            all.photo_count.on_query_unload();
    };
    look_again_at_folder(main, photos);
    EXPECT_EQ(table(), "1 upright.jpg 2 turned.jpg 3 other name.jpg ");
    EXPECT_TRUE(is_under(main.table[1], folder.at("prepared")));
}

TEST_F(prepared_photos_test, tells_when_the_copies_have_no_place)
{
    folder.write("prepared", "a file in the folder's place");
    choose_folder(answer::yes);
    EXPECT_EQ(table(), "1 upright.jpg 2 turned.jpg ");
    EXPECT_TRUE(desk.next_message().starts_with("The copies can't be made: "));
}

TEST_F(prepared_photos_test, says_what_is_missing_without_the_decoder)
{
    main.install_folder = folder.path();
    choose_folder(answer::yes);
    EXPECT_NE(desk.next_message().find("the program tessaloom-decode isn't there"), std::string::npos);
}
