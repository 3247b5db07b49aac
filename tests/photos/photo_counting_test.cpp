#include "photos/chosen_photos.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/photos/photo_list_fixture.h"
#include "tests/small_files.h"

#include <filesystem>
#include <sys/stat.h>

namespace {
using photo_counting_test = photo_list_test;
}

TEST_F(photo_counting_test, counting_swaps_photos_for_thumbnails_and_counts_orientations)
{
    fill_table({photo("wide.jpg", 40, 30), photo("high.jpg", 30, 40), photo("square.jpg", 30, 30)});
    count_photos(main);
    EXPECT_EQ(counted(), "2l 1p l:p:l:");
    EXPECT_EQ(main.table[0], folder.at("sample_thumbs/wide.jpg"));
    EXPECT_EQ(main.table[2], folder.at("sample_thumbs/square.jpg"));
}

TEST_F(photo_counting_test, counting_twice_gives_the_same)
{
    fill_table({photo("wide.jpg", 40, 30), photo("high.jpg", 30, 40)});
    count_photos(main);
    const std::string first = table();
    count_photos(main);
    EXPECT_EQ(table(), first);
    EXPECT_EQ(counted(), "1l 1p l:p:");
    EXPECT_EQ(main.table[0], folder.at("sample_thumbs/wide.jpg"));
}

TEST_F(photo_counting_test, missing_photos_are_dropped)
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

TEST_F(photo_counting_test, an_empty_table_is_counted_as_empty_whatever_stands_at_0)
{
    fill_table({photo("a.jpg", 40, 30)});
    main.table.last_photo = -1;
    count_photos(main);
    EXPECT_EQ(counted(), "0l 0p ");
    EXPECT_EQ(main.table.last_photo, -1);
}

TEST_F(photo_counting_test, what_is_no_jpeg_stays_in_the_table_and_counts_as_neither)
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

TEST_F(photo_counting_test, grey_and_cmyk_photos_and_long_strips_count_as_others)
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

TEST_F(photo_counting_test, a_photo_beyond_16_bits_is_left_out_and_the_others_are_counted)
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

TEST_F(photo_counting_test, what_is_left_out_is_named_in_one_box_behind_the_count)
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

TEST_F(photo_counting_test, photos_of_a_closed_folder_are_counted_by_themselves)
{
    fill_table({photo("closed/a.jpg", 30, 40)});
    const std::string path = main.table[0];
    ::chmod(folder.at("closed").c_str(), 0555);
    const as_ordinary_user user;
    count_photos(main);
    EXPECT_EQ(counted(), "0l 1p p:");
    EXPECT_EQ(main.table[0], path);
}

TEST_F(photo_counting_test, counting_tells_how_far_it_is)
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

TEST_F(photo_counting_test, counting_needs_no_other_window)
{
    frmMain alone{desk, listed({})};
    alone.table[0] = photo("a.jpg", 40, 30);
    alone.table.last_photo = 0;
    count_photos(alone);
    EXPECT_EQ(alone.table.landscape_count, 1);
}
