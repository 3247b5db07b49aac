#include "engine/flurn_driver.h"
#include "engine/preview.h"
#include "photos/chosen_photos.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "photos/thumbnails/thumbnails.h"
#include "quick/quick_template.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"
#include "tests/waiting_disk.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

// Previews are made of thumbnails; what becomes of the photos, and of the thumbnails, is seen in the next
// one.

namespace fs = std::filesystem;

namespace {

// A preview of four photos has been made.
struct changed_in_preview : four_photos {
    std::vector<std::string> photos;

    changed_in_preview()
    {
        for (int i = 0; i <= main.table.last_photo; ++i)
            photos.push_back(main.table[i]);
        use_thumbnails();
        main.table.reshuffle_choice = photo_table::reshuffle::no;
    }
    void use_grid()
    {
        main.design_record.style = "Fill";
        use_template({"0:0:2:2:0:-1:-1:0:", "0:0:1500:1000:0:0:0:0:"});
    }
    // The quarters of the preview, row by row.
    std::string sample()
    {
        gen_sample(main);
        const bitmap shown = finished();
        return {letter_at(shown, 75, 100), letter_at(shown, 220, 100), letter_at(shown, 75, 360),
                letter_at(shown, 220, 360)};
    }
    std::string thumbnail(int index) const
    {
        return thumbnail_path(photos.at(static_cast<std::size_t>(index)));
    }
};

// Each of the ways in which a loop comes to its photos.
void in_each_loop(const std::function<void(changed_in_preview & run)> & play)
{
    for (const bool grid : {false, true})
        for (const bool matched : {false, true}) {
            SCOPED_TRACE(testing::Message() << "grid " << grid << ", matched " << matched);
            changed_in_preview run;
            if (grid)
                run.use_grid();
            run.main.chkMatch.tick(matched);
            run.main.collage.design_matches = matched;
            play(run);
        }
}

void expect_left_out_everywhere(const std::function<void(const std::string & photo)> & spoil,
                                const std::string & told)
{
    in_each_loop([&](changed_in_preview & run) {
        EXPECT_EQ(run.sample(), "rgby");
        spoil(run.photos[1]);
        for (int preview = 0; preview < 3; ++preview)
            EXPECT_EQ(run.sample(), "rbyr");
        EXPECT_TRUE(
            run.desk.next_message().starts_with("This photo was left out:\r\n" + run.photos[1] + told));
        EXPECT_TRUE(run.desk.messages.empty()) << "named once";
        EXPECT_EQ(run.main.table.last_photo, 3) << "it may come back";
    });
}

}  // namespace

TEST(changed_in_preview, a_photo_that_is_gone_is_left_out_and_named_once)
{
    expect_left_out_everywhere([](const std::string & photo) { fs::remove(photo); },
                               ": it isn't there any more");
    expect_left_out_everywhere([](const std::string & photo) { fs::rename(photo, photo + ".old"); },
                               ": it isn't there any more");
}

TEST(changed_in_preview, a_photo_that_was_cut_short_is_left_out_and_named_once)
{
    for (const bool just_now : {true, false})
        expect_left_out_everywhere(
            [&](const std::string & photo) {
                const auto before = fs::last_write_time(photo);
                fs::resize_file(photo, fs::file_size(photo) / 2);
                if (!just_now)
                    fs::last_write_time(photo, before - std::chrono::hours(1));
            },
            ": it was cut short or is still being copied");
}

TEST(changed_in_preview, the_poster_names_nothing_again)
{
    changed_in_preview run;
    fs::remove(run.photos[0]);
    run.sample();
    run.desk.next_message();
    EXPECT_EQ(sampled(run.full_run(), 500, 1000), "gb\nyg\nyg\n");
    EXPECT_TRUE(run.desk.messages.empty());
}

TEST(changed_in_preview, a_photo_that_comes_back_is_shown_again)
{
    changed_in_preview run;
    fs::rename(run.photos[1], run.photos[1] + ".old");
    EXPECT_EQ(run.sample(), "rbyr");
    run.desk.next_message();
    fs::rename(run.photos[1] + ".old", run.photos[1]);
    EXPECT_EQ(run.sample(), "rgby");
}

TEST(changed_in_preview, all_gone_with_their_folder_one_box_says_so)
{
    for (const bool matched : {false, true}) {
        changed_in_preview run;
        run.main.chkMatch.tick(matched);
        run.main.collage.design_matches = matched;
        run.sample();
        fs::rename(folder_of(run.photos[0]), run.home.at("elsewhere"));
        for (int preview = 0; preview < 2; ++preview)
            EXPECT_EQ(run.sample(), "....");
        const std::string told = run.desk.next_message();
        EXPECT_NE(told.find("None of your photos can be used:\r\n" + run.photos[0]), std::string::npos)
            << told;
        EXPECT_TRUE(run.desk.messages.empty()) << "one cause, one box";
        expect_usable(run.main);
    }
}

TEST(changed_in_preview, a_thumbnail_that_is_gone_or_spoiled_is_made_anew_without_a_word)
{
    const auto emptied = [](const std::string & file) { fs::resize_file(file, 0); };
    const auto halved = [](const std::string & file) { fs::resize_file(file, fs::file_size(file) / 2); };
    const auto no_picture = [](const std::string & file) { write_file(file, "no picture"); };
    const auto of_the_same_time = [&](const std::string & file) {
        const auto before = fs::last_write_time(file);
        halved(file);
        fs::last_write_time(file, before);
    };
    const auto deleted = [](const std::string & file) { fs::remove(file); };
    const auto with_its_folder = [](const std::string & file) { fs::remove_all(folder_of(file)); };
    for (const std::function<void(const std::string &)> & spoil :
         std::vector<std::function<void(const std::string &)>>{deleted, with_its_folder, emptied, halved,
                                                               of_the_same_time, no_picture})
        for (const bool before_the_first : {false, true}) {
            changed_in_preview run;
            const std::string bytes = read_file(run.thumbnail(2));
            if (!before_the_first)
                run.sample();
            spoil(run.thumbnail(2));
            EXPECT_EQ(run.sample(), "rgby");
            EXPECT_EQ(read_file(run.thumbnail(2)), bytes);
            EXPECT_TRUE(run.main.left_out.photos.empty());
        }
}

TEST(changed_in_preview, thumbnails_of_many_photos_are_made_anew_by_any_number_of_workers)
{
    for (const int workers : {0, 1, 4}) {
        changed_in_preview run;
        run.main.workers.set_count(workers);
        run.use_grid();
        for (int i = 0; i < 40; ++i)
            run.add_photo(i % 2 == 0 ? red : blue);
        photos_from_thumbnails(run.main);
        run.use_thumbnails();
        fs::remove_all(folder_of(run.thumbnail(0)));
        EXPECT_EQ(run.sample(), "rgby");
        EXPECT_TRUE(file_exists(run.thumbnail(3)));
    }
}

TEST(changed_in_preview, where_no_thumbnail_can_be_written_the_photo_stands_in)
{
    in_each_loop([](changed_in_preview & run) {
        fs::remove_all(folder_of(run.thumbnail(0)));
        ::chmod(folder_of(run.photos[0]).c_str(), 0555);
        for (const char * place : {"data", "data/tmp"})
            ::chmod(run.home.at(place).c_str(), 0777);
        const as_ordinary_user user;
        EXPECT_EQ(run.sample(), "rgby");
        EXPECT_EQ(run.sample(), "rgby") << "nor is it looked for again in vain";
    });
}

TEST(changed_in_preview, a_photo_that_was_replaced_is_shown_as_it_is_now)
{
    changed_in_preview run;
    EXPECT_EQ(run.sample(), "rgby");
    save_jpeg(plain(44, 60, red), run.photos[3]);
    EXPECT_EQ(run.sample(), "rgbr");
    save_jpeg(plain(48, 60, green), run.photos[3]);
    fs::last_write_time(run.photos[3], fs::last_write_time(run.photos[3]) - std::chrono::hours(5));
    EXPECT_EQ(run.sample(), "rgbg") << "an older one as well";
}

TEST(changed_in_preview, where_only_the_caption_changes_a_photo_that_is_gone_is_missing_too)
{
    changed_in_preview run;
    run.sample();
    ASSERT_TRUE(run.main.run.kept);
    fs::remove(run.photos[1]);
    run.main.txtCaption.set_text("Summer");
    EXPECT_EQ(run.sample().substr(0, 2), "rb");
    run.desk.next_message();
}

TEST(changed_in_preview, the_window_is_let_through_while_the_disk_is_asked)
{
    changed_in_preview run;
    run.sample();
    fs::remove(run.photos[1]);
    fs::remove(run.thumbnail(0));
    const waiting_disk disk(run.main, run.desk);
    EXPECT_EQ(run.sample(), "rbyr");
    EXPECT_TRUE(disk.window_was_let_through());
    run.desk.next_message();
}

TEST(changed_in_preview, other_photos_are_counted_without_those_that_are_gone)
{
    changed_in_preview run;
    fs::remove(run.photos[1]);
    run.sample();
    run.desk.next_message();
    count_with_progress(run.main);
    EXPECT_EQ(run.main.table.last_photo, 2);
    EXPECT_TRUE(run.desk.next_message().starts_with("This photo was left out:\r\n" + run.photos[1]));
    EXPECT_EQ(run.sample(), "rbyr");
}
