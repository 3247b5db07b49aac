#include "engine/kept_canvas.h"

#include "engine/preview.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

// Previews of four photos, one that keeps its canvas and one that never does.
struct two_sessions {
    four_photos keeping, forgetting;

    two_sessions()
    {
        for (four_photos * each : {&keeping, &forgetting}) {
            each->desk.keeps_messages = true;
            each->main.in_preview = true;
            each->use_thumbnails();
            gen_sample(each->main);
        }
    }

    void expect_same_after(const std::string & what, const std::function<void(four_photos &)> & change)
    {
        forgetting.main.run.kept.reset();
        for (four_photos * each : {&keeping, &forgetting}) {
            change(*each);
            gen_sample(each->main);
        }
        EXPECT_EQ(read_file(finished_path(keeping.main)), read_file(finished_path(forgetting.main))) << what;
        EXPECT_EQ(keeping.main.run.image_number, forgetting.main.run.image_number) << what;
        EXPECT_EQ(keeping.main.design_locations.count, forgetting.main.design_locations.count) << what;
        EXPECT_EQ(keeping.desk.messages, forgetting.desk.messages) << what;
        EXPECT_EQ(keeping.main.random.next(), forgetting.main.random.next()) << what;
    }

    // Another colour on the kept canvas shows whether it is used.
    bool is_used_after(const std::function<void(four_photos &)> & change)
    {
        gen_sample(keeping.main);
        kept_canvas & kept = *keeping.main.run.kept;
        kept.canvas = plain(kept.canvas.width(), kept.canvas.height(), {.red = 9, .green = 9, .blue = 9});
        change(keeping);
        gen_sample(keeping.main);
        return seen(keeping.finished(), 150, 100).red < 30;
    }
};

void touch(const std::string & path)
{
    std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::seconds(5));
}

}  // namespace

TEST(kept_canvas, is_used_when_nothing_or_only_the_caption_has_changed)
{
    two_sessions both;
    EXPECT_TRUE(both.is_used_after([](four_photos &) {}));
    both.keeping.main.run.kept.reset();
    both.keeping.main.txtCaption.set_text("Summer");
    EXPECT_TRUE(both.is_used_after([](four_photos & run) { run.main.txtCaption.set_text("Winter"); }));
    both.keeping.main.run.kept.reset();
    EXPECT_TRUE(both.is_used_after([](four_photos & run) { run.main.txtCaption.set_fore_color(0x2040F0); }));
}

TEST(kept_canvas, is_not_used_when_a_photo_or_its_file_is_another)
{
    two_sessions both;
    both.keeping.main.table.reshuffle_choice = photo_table::reshuffle::no;  // three are left for four places
    EXPECT_FALSE(both.is_used_after([](four_photos & run) { touch(run.main.table[2]); }));
    EXPECT_FALSE(
        both.is_used_after([](four_photos & run) { std::swap(run.main.table[0], run.main.table[1]); }));
    EXPECT_FALSE(
        both.is_used_after([](four_photos & run) { save_jpeg(plain(150, 200, yellow), run.main.table[0]); }));
    EXPECT_FALSE(both.is_used_after([](four_photos & run) { delete_file(run.main.table[3]); }));
    EXPECT_FALSE(both.is_used_after([](four_photos & run) { delete_file(photo_path(run.main.table[3])); }));
}

TEST(kept_canvas, is_not_used_when_the_ground_or_a_place_is_another)
{
    two_sessions both;
    EXPECT_FALSE(both.is_used_after([](four_photos & run) { run.main.picBGcolor.set_back_color(0x203040); }));
    EXPECT_FALSE(both.is_used_after([](four_photos & run) {
        std::vector<std::string> lines = quarters();
        lines[1] = "0:1000:1500:900:0:0:0:0:";
        run.use_template(lines);
    }));
}

TEST(kept_canvas, is_not_kept_where_a_photo_was_left_out_or_chance_had_a_say)
{
    two_sessions both;
    four_photos & run = both.keeping;
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;  // three are left for four places
    run.home.write("photos/text.jpg", "no picture");
    run.main.table[1] = run.home.at("photos/text.jpg");
    gen_sample(run.main);
    EXPECT_FALSE(run.main.run.kept);
    two_sessions asked;
    asked.keeping.main.table.last_photo = 1;
    asked.keeping.desk.will_answer(answer::yes);
    gen_sample(asked.keeping.main);
    EXPECT_FALSE(asked.keeping.main.run.kept);
    gen_sample(asked.keeping.main);
    EXPECT_FALSE(asked.keeping.main.run.kept);
}

TEST(kept_canvas, is_not_kept_by_a_full_run)
{
    four_photos run;
    run.full_run();
    EXPECT_FALSE(run.main.run.kept);
}

TEST(kept_canvas, any_control_that_changes_leaves_the_picture_of_a_full_redraw)
{
    two_sessions both;
    for (control * held : both.keeping.main.controls())
        for (const char * value : {"1", "30", "0"})
            if (held->set_as_user(value))
                both.expect_same_after(held->name() + " " + value, [&](four_photos & run) {
                    run.main.find(held->name())->set_as_user(value);
                });
}

TEST(kept_canvas, any_flag_of_a_control_that_changes_leaves_the_picture_of_a_full_redraw)
{
    two_sessions both;
    both.expect_same_after("frame", [](four_photos & run) { run.main.cmbFrame.set_text("30"); });
    both.expect_same_after("shadow", [](four_photos & run) { run.main.cmbShadow.set_text("30"); });
    for (const control * held : both.keeping.main.controls()) {
        both.expect_same_after(held->name() + " hidden", [&](four_photos & run) {
            control * const own = run.main.find(held->name());
            own->show(!own->visible());
        });
        both.expect_same_after(held->name() + " colour", [&](four_photos & run) {
            run.main.find(held->name())->set_back_color(0x804020);
        });
    }
}
