#include "engine/flurn_driver.h"
#include "engine/preview.h"
#include "photos/chosen_photos.h"
#include "photos/thumbnails/thumbnails.h"
#include "quick/quick_template.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"
#include "tests/small_files.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

// Photos that a run can't use, in each of the ways in which photos are placed.

namespace {

struct told_fault {
    std::string reason, remedy;
};

const told_fault too_long{"it is too long for its width", "Cut what is too long in two."};
const told_fault unreadable{"it can't be read as a JPEG photo", "Save what can't be read as a JPEG again."};
const told_fault cut_short{"it was cut short or is still being copied",
                           "Copy what was cut short to its place again, or wait until it is there."};

struct spoiled_run : collage_fixture {
    spoiled_run() { use_template(quarters()); }

    // So long that in a place of 1000 by 1500 it would be 120,000 pixels wide.
    std::string add_strip()
    {
        add_path(home.write("photos/strip.jpg", flat_jpeg(16000, 200, {90}, adobe_mark::absent)));
        return main.table[main.table.last_photo];
    }
    void use_grid()
    {
        main.design_record.style = "Fill";
        use_template({"0:0:2:2:0:-1:-1:0:", "0:0:1500:1000:0:0:0:0:"});
    }
    // The window of the finished collage would not be expected.
    void run_without_poster() { make_flurn(main, make_quick_template); }
    std::string seen_run() { return sampled(full_run(), 500, 1000); }
    // The one box, and what else may stand in it.
    void expect_left_out(const std::string & photo, const told_fault & fault, const std::string & before = {})
    {
        EXPECT_EQ(desk.next_message(), before + "This photo was left out:\r\n" + photo + ": " + fault.reason +
                                           "\r\n\r\n" + fault.remedy + "\r\nThen choose your photos again.");
    }
};

}  // namespace

TEST(left_out_photos, a_strip_gives_its_place_to_the_next_photo)
{
    for (const bool captioned : {false, true})
        for (const bool matched : {false, true}) {
            spoiled_run run;
            run.main.chkCaption.tick(captioned);
            run.main.collage.design_matches = matched;
            run.main.chkMatch.tick(matched);
            run.add_photo(red, 20, 30);
            const std::string strip = run.add_strip();
            for (const rgb_triple color : {green, blue, yellow})
                run.add_photo(color, 20, 30);
            const std::string between = captioned ? "ww" : "by";  // the cards' lower edges
            EXPECT_EQ(run.seen_run(), "rg\n" + between + "\nby\n");
            if (matched)
                EXPECT_TRUE(run.main.left_out.photos.empty()) << "no place lies as the strip does";
            else
                run.expect_left_out(strip, too_long);
            expect_usable(run.main);
        }
}

TEST(left_out_photos, a_strip_gives_its_tilted_place_to_the_next_photo)
{
    spoiled_run run;
    run.use_template({"800:500:1000:800:10:0:0:0:"});
    run.home.write("install/rotate.ini", "");
    const std::string strip = run.add_strip();
    run.add_photo(green);
    run.full_run();
    run.expect_left_out(strip, too_long);
    EXPECT_TRUE(run.main.left_out.in_this_run.contains(strip));
    EXPECT_FALSE(run.main.left_out.in_this_run.contains(photo_path(run.main.table[1])));
}

TEST(left_out_photos, a_strip_gives_its_cell_to_the_next_photo)
{
    spoiled_run run;
    run.use_grid();
    run.add_photo(red);
    const std::string strip = run.add_strip();
    for (const rgb_triple color : {green, blue, yellow})
        run.add_photo(color);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.seen_run(), "rg\nby\nby\n");
    run.expect_left_out(strip, too_long);
}

TEST(left_out_photos, a_matched_grid_whose_only_fitting_photo_is_a_strip_goes_on_without_matching)
{
    spoiled_run run;
    run.use_grid();
    run.main.chkMatch.tick(true);
    run.add_path(run.home.write("photos/strip.jpg", flat_jpeg(200, 16000, {90}, adobe_mark::absent)));
    const std::string strip = run.main.table[0];
    run.add_photo(red, 30, 20);
    run.add_photo(blue, 30, 20);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.seen_run(), "rb\nrb\nrb\n");
    run.expect_left_out(strip, too_long, "You don't have any photos that match this design.\r\n\r\n");
    EXPECT_TRUE(run.desk.messages.empty()) << "one cause, one box";
}

TEST(left_out_photos, a_matched_grid_goes_on_when_its_only_fitting_photo_vanishes)
{
    spoiled_run run;
    run.use_grid();
    run.main.chkMatch.tick(true);
    run.add_photo(red);
    run.add_photo(blue, 30, 20);
    const std::string gone = run.main.table[0];
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.desk.on_pump(3, [&] { std::filesystem::remove(gone); });
    EXPECT_EQ(run.seen_run().substr(0, 1), "r");
    EXPECT_TRUE(run.desk.next_message().starts_with(
        "You don't have any photos that match this design.\r\n\r\nThis photo was left out:\r\n" + gone));
    EXPECT_TRUE(run.desk.messages.empty()) << "one cause, one box";
}

TEST(left_out_photos, without_a_photo_that_can_be_used_every_style_comes_to_its_end)
{
    for (const char * style : {"Place", "Fill"})
        for (const bool matched : {false, true})
            for (const bool both : {false, true}) {
                spoiled_run run;
                if (style == std::string("Fill"))
                    run.use_grid();
                run.main.chkMatch.tick(matched);
                run.main.collage.design_matches = matched;
                run.main.collage.matrix_both = both;
                run.add_strip();
                run.add_path(run.home.write("photos/text.jpg", "no picture"));
                run.add_path(
                    run.home.write("photos/huge.jpg", flat_jpeg(32768, 8, {90}, adobe_mark::absent)));
                run.add_path(run.home.at("photos/gone.jpg"));
                run.main.table.reshuffle_choice = photo_table::reshuffle::yes;
                const std::string before = run.home.write("data/tmp/finished.jpg", "of an earlier preview");
                run.run_without_poster();
                EXPECT_EQ(read_file(before), "of an earlier preview");
                run.desk.keeps_messages = true;
                const std::string & told = run.desk.messages.back();
                EXPECT_NE(told.find("None of your photos can be used:\r\n"), std::string::npos) << told;
                EXPECT_EQ(std::ranges::count_if(run.desk.messages,
                                                [](const std::string & each) {
                                                    return each.find("None of your photos can be used") !=
                                                           std::string::npos;
                                                }),
                          1)
                    << "one cause, one box";
                EXPECT_EQ(run.main.left_out.photos.size(), 4U);
                expect_usable(run.main);
            }
}

TEST(left_out_photos, a_design_without_a_photo_for_it_says_why_in_the_same_box)
{
    spoiled_run run;
    run.main.chkMatch.tick(true);
    run.main.collage.design_matches = true;
    const std::string text = run.home.write("photos/text.jpg", "no picture");
    run.add_path(text);
    const std::string box =
        "No images match the design\r\n\r\nNone of your photos can be used:\r\n" + text +
        ": it can't be read as a JPEG photo\r\n\r\nSave what can't be read as a JPEG again.\r\nThen choose "
        "your photos again.";
    gen_sample(run.main);
    EXPECT_EQ(run.desk.next_message(), box);
    gen_sample(run.main);
    EXPECT_TRUE(run.desk.messages.empty()) << "a preview repeats nothing";
    run.run_without_poster();
    EXPECT_EQ(run.desk.next_message(), box);
}

TEST(left_out_photos, are_named_by_the_first_preview_and_not_again)
{
    spoiled_run run;
    run.add_photo(red);
    const std::string text = run.home.write("photos/text.jpg", "no picture");
    run.add_path(text);
    run.add_photo(green);
    run.use_thumbnails();
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    gen_sample(run.main);
    run.expect_left_out(text, unreadable);
    gen_sample(run.main);
    EXPECT_EQ(run.seen_run(), "rg\nrg\nrg\n");
    EXPECT_TRUE(run.desk.messages.empty());
}

TEST(left_out_photos, one_that_can_be_read_again_takes_part_in_the_next_run)
{
    spoiled_run run;
    run.add_photo(red);
    run.add_path(run.home.write("photos/b.jpg", "no picture"));
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.seen_run(), "rr\nrr\nrr\n");
    EXPECT_TRUE(run.desk.next_message().starts_with("This photo was left out:\r\n"));
    run.picture("photos/b.jpg", blue, 20, 30);
    EXPECT_EQ(run.seen_run(), "rb\nrb\nrb\n");
}

TEST(left_out_photos, without_any_left_each_run_says_so_and_makes_no_poster)
{
    for (const bool matched : {false, true}) {
        spoiled_run run;
        run.main.chkMatch.tick(matched);
        run.main.collage.design_matches = matched;
        run.add_photo(red);
        const std::string photo = run.main.table[0];
        run.main.table.reshuffle_choice = photo_table::reshuffle::no;
        EXPECT_TRUE(run.full_run());
        std::filesystem::remove(photo);
        for (int i = 0; i < 2; ++i) {
            run.run_without_poster();
            const std::string told = run.desk.next_message();
            EXPECT_NE(told.find("None of your photos can be used:\r\n" + photo), std::string::npos) << told;
            EXPECT_TRUE(run.desk.messages.empty()) << "one cause, one box";
            expect_usable(run.main);
        }
    }
}

TEST(left_out_photos, a_run_whose_last_photo_vanishes_makes_no_poster)
{
    spoiled_run run;
    run.add_photo(red);
    const std::string photo = run.main.table[0];
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.desk.on_pump(4, [&] { std::filesystem::remove(photo); });
    run.run_without_poster();
    EXPECT_EQ(run.desk.next_message().substr(0, 33), "None of your photos can be used:\r");
}

TEST(left_out_photos, one_that_was_cut_short_since_it_was_counted_is_named)
{
    for (const bool grid : {false, true})
        for (const bool matched : {false, true}) {
            spoiled_run run;
            if (grid)
                run.use_grid();
            run.main.chkMatch.tick(matched);
            run.main.collage.design_matches = matched;
            for (const rgb_triple color : {red, green, blue})
                run.add_photo(color, 20, 30);
            const std::string cut = run.home.write("photos/cut.jpg", jpeg_bytes(noise(200, 300)));
            run.add_path(cut);
            run.use_thumbnails();
            const std::string whole = read_file(cut);
            write_file(cut, whole.substr(0, whole.size() / 2));
            run.main.table.reshuffle_choice = photo_table::reshuffle::no;
            EXPECT_EQ(run.seen_run().substr(0, 6), "rg\nbr\n");
            run.expect_left_out(cut, cut_short);
        }
}

TEST(left_out_photos, one_that_was_cut_short_long_before_it_was_counted_is_taken_as_it_is)
{
    spoiled_run run;
    const std::string whole = jpeg_bytes(noise(200, 300));
    const std::string cut = run.home.write("photos/cut.jpg", whole.substr(0, whole.size() / 2));
    std::filesystem::last_write_time(cut, std::filesystem::last_write_time(cut) - std::chrono::hours(1));
    run.add_path(cut);
    run.use_thumbnails();
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_TRUE(run.full_run());
    EXPECT_TRUE(run.desk.messages.empty());
}

TEST(left_out_photos, one_that_is_still_being_copied_is_named_once_and_shown_when_it_is_there)
{
    spoiled_run run;
    for (const rgb_triple color : {red, green, blue})
        run.add_photo(color, 20, 30);
    const std::string whole = jpeg_bytes(plain(200, 300, yellow)),
                      coming = run.home.write("photos/d.jpg", whole.substr(0, whole.size() / 2));
    run.add_path(coming);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    count_with_progress(run.main);
    run.expect_left_out(coming, cut_short);
    EXPECT_EQ(run.seen_run().substr(0, 6), "rg\nbr\n") << "as it was when the photos were counted";
    run.home.write("photos/d.jpg", whole);
    EXPECT_EQ(run.seen_run().substr(0, 6), "rg\nby\n");
    count_with_progress(run.main);
    EXPECT_EQ(run.main.table[3], run.home.at("photos/sample_thumbs/d.jpg"));
}

TEST(left_out_photos, one_that_was_replaced_since_it_was_counted_is_shown_as_it_is_now)
{
    spoiled_run run;
    for (const rgb_triple color : {red, green, blue, yellow})
        run.add_photo(color, 20, 30);
    const std::string last = run.main.table[3];
    run.use_thumbnails();
    save_jpeg(plain(30, 45, red), run.home.at("another.jpg"));
    std::filesystem::rename(run.home.at("another.jpg"), last);
    EXPECT_EQ(run.seen_run().substr(0, 6), "rg\nbr\n");
    save_jpeg(plain(40, 60, green), last);
    EXPECT_EQ(run.seen_run().substr(0, 6), "rg\nbg\n") << "in its place";
}
