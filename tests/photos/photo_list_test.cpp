#include "photos/photo_list.h"

#include "photos/chosen_photos.h"
#include "session/windows.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/small_files.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

struct photo_list_test : testing::Test {
    temporary_folder folder;
    scripted_desktop desk;
    random_source random = listed({0.5, 0.0, 0.99, 0.0});
    windows all{desk, random};
    frmMain & main = all.main;

    photo_list_test() { main.data_folder = folder.path(); }

    std::string photo(std::string_view name, int width, int height)
    {
        const std::string path = folder.at(name);
        save_jpeg(plain(width, height, {.red = 9}), path);
        return path;
    }
    void fill_table(std::initializer_list<std::string> photos)
    {
        std::ranges::copy(photos, main.table.photos.begin());
        main.table.last_photo = narrow(static_cast<long>(photos.size()) - 1);
    }
    void list(std::string_view text) { main.txtPhotos.tag = folder.write("list.pls", text); }
    std::string table() const
    {
        std::string text;
        for (int i = 0; i <= main.table.last_photo; ++i)
            text += name_of(main.table[i]) + " ";
        return text;
    }
    std::vector<std::string> taken() const
    {
        return {main.table.photos.begin(), main.table.photos.begin() + main.table.last_photo + 1};
    }
    std::string counted() const
    {
        return std::to_string(main.table.landscape_count) + "l " + std::to_string(main.table.portrait_count) +
               "p " + main.table.orientation_list;
    }
};

}  // namespace

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

TEST_F(photo_list_test, counting_swaps_photos_for_thumbnails_and_counts_orientations)
{
    fill_table({photo("wide.jpg", 40, 30), photo("high.jpg", 30, 40), photo("square.jpg", 30, 30)});
    count_photos(main);
    EXPECT_EQ(counted(), "2l 1p l:p:l:");
    EXPECT_EQ(main.table[0], folder.at("sample_thumbs/wide.jpg"));
    EXPECT_EQ(main.table[2], folder.at("sample_thumbs/square.jpg"));
}

TEST_F(photo_list_test, counting_twice_gives_the_same)
{
    fill_table({photo("wide.jpg", 40, 30), photo("high.jpg", 30, 40)});
    count_photos(main);
    const std::string first = table();
    count_photos(main);
    EXPECT_EQ(table(), first);
    EXPECT_EQ(counted(), "1l 1p l:p:");
    EXPECT_EQ(main.table[0], folder.at("sample_thumbs/wide.jpg"));
}

TEST_F(photo_list_test, missing_photos_are_dropped)
{
    fill_table(
        {"/gone/1.jpg", "/gone/2.jpg", photo("a.jpg", 40, 30), "", photo("b.jpg", 30, 40), "/gone/3.jpg"});
    count_photos(main);
    EXPECT_EQ(table(), "a.jpg b.jpg ");
    EXPECT_EQ(counted(), "1l 1p l:p:");
    std::filesystem::remove(folder.at("a.jpg"));
    count_photos(main);
    EXPECT_EQ(table(), "b.jpg ");
    std::filesystem::remove(folder.at("b.jpg"));
    count_photos(main);
    EXPECT_EQ(main.table.last_photo, -1);
    EXPECT_EQ(counted(), "0l 0p ");
}

TEST_F(photo_list_test, an_empty_table_is_counted_as_empty_whatever_stands_at_0)
{
    fill_table({photo("a.jpg", 40, 30)});
    main.table.last_photo = -1;
    count_photos(main);
    EXPECT_EQ(counted(), "0l 0p ");
    EXPECT_EQ(main.table.last_photo, -1);
}

TEST_F(photo_list_test, what_is_no_jpeg_stays_in_the_table_and_counts_as_neither)
{
    save_bmp(plain(30, 40, {}), folder.at("bmp.jpg"));
    fill_table({folder.at("bmp.jpg"), folder.write("png.png", small_png()),
                folder.write("png.jpg", small_png()), folder.write("empty.jpg", ""),
                folder.write("text.jpg", "no picture"), photo("a.jpg", 40, 30)});
    count_photos(main);
    EXPECT_EQ(main.table.last_photo, 5);
    EXPECT_EQ(counted(), "1l 0p l:");
    EXPECT_EQ(main.table[2], joined(folder.path(), "sample_thumbs/png.jpg"));
    count_photos(main);
    EXPECT_EQ(main.table.last_photo, 5);
    EXPECT_EQ(counted(), "1l 0p l:");
}

TEST_F(photo_list_test, grey_and_cmyk_photos_and_long_strips_count_as_others)
{
    fill_table({folder.write("grey.jpg", flat_jpeg(30, 40, {90}, adobe_mark::absent)),
                folder.write("cmyk.jpg", flat_jpeg(40, 30, {0, 128, 255, 255}, adobe_mark::present)),
                photo("strip.jpg", 200, 16000)});
    count_photos(main);
    EXPECT_EQ(counted(), "1l 2p p:l:p:");
    const bitmap cyan = load_picture(picture_format::jpeg, main.table[1]);
    EXPECT_NEAR(seen(cyan, 100, 75).red, 0, 2);
    EXPECT_NEAR(seen(cyan, 100, 75).blue, 255, 2);
}

TEST_F(photo_list_test, a_photo_beyond_16_bits_is_left_out_and_the_others_are_counted)
{
    const std::string wide = folder.write("wide.jpg", flat_jpeg(32768, 8, {90}, adobe_mark::absent)),
                      high = folder.write("high.jpg", flat_jpeg(8, 40000, {90}, adobe_mark::absent));
    fill_table({wide, photo("a.jpg", 40, 30), high, photo("b.jpg", 30, 40)});
    count_photos(main);
    EXPECT_EQ(counted(), "1l 1p l:p:");
    EXPECT_EQ(main.left_out.photos,
              (std::vector<left_out_photo>{{.path = wide, .fault = photo_fault::too_large},
                                           {.path = high, .fault = photo_fault::too_large}}));
}

TEST_F(photo_list_test, what_is_left_out_is_named_in_one_box_behind_the_count)
{
    const std::string text = folder.write("text.jpg", "no picture");
    fill_table({text, "/gone.jpg", photo("a.jpg", 40, 30)});
    desk.on_breath = [&] { EXPECT_TRUE(desk.messages.empty()) << "in the midst of the count"; };
    count_with_progress(main);
    EXPECT_EQ(desk.next_message(),
              "These photos were left out:\r\n" + text +
                  ": it can't be read as a JPEG photo\r\n/gone.jpg: it isn't there any more\r\n\r\n"
                  "Put what is missing back in its place.\r\n"
                  "Save what can't be read as a JPEG again.\r\n"
                  "Then choose your photos again.");
    EXPECT_EQ(desk.busy_depth, 0);
}

TEST_F(photo_list_test, a_list_with_a_photo_beyond_16_bits_is_saved)
{
    const std::string wide = folder.write("wide.jpg", flat_jpeg(32768, 8, {90}, adobe_mark::absent)),
                      high = photo("high.jpg", 30, 40);
    folder.write("piclists/last_photos.pls", "P " + wide + "\r\nL " + high + "\r\n");
    save_last_list(main, folder.at("piclists/mine.pls"));
    EXPECT_EQ(read_file(folder.at("piclists/mine.pls")), "L " + wide + "\r\nP " + high + "\r\n");
}

TEST_F(photo_list_test, photos_of_a_closed_folder_are_counted_by_themselves)
{
    fill_table({photo("closed/a.jpg", 30, 40)});
    const std::string path = main.table[0];
    ::chmod(folder.at("closed").c_str(), 0555);
    const as_ordinary_user user;
    count_photos(main);
    EXPECT_EQ(counted(), "0l 1p p:");
    EXPECT_EQ(main.table[0], path);
}

TEST_F(photo_list_test, counting_tells_how_far_it_is)
{
    fill_table({photo("a.jpg", 40, 30), "/gone.jpg", photo("b.jpg", 40, 30)});
    std::vector<std::string> told;
    for (int pump = 1; pump <= 3; ++pump)
        desk.on_pump(pump, [&] { told.push_back(all.photo_count.lblCount.caption()); });
    count_photos(main);
    EXPECT_EQ(told, (std::vector<std::string>{"Checking 0  of  3  photos", "Checking 1  of  3  photos",
                                              "Checking 1  of  2  photos"}));
    EXPECT_EQ(desk.pumps, 3);
}

TEST_F(photo_list_test, counting_needs_no_other_window)
{
    frmMain alone{desk, listed({})};
    alone.table[0] = photo("a.jpg", 40, 30);
    alone.table.last_photo = 0;
    count_photos(alone);
    EXPECT_EQ(alone.table.landscape_count, 1);
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
