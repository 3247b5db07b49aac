#include "designs/catalogue/last_flurn.h"

#include "designs/catalogue/saved_design.h"
#include "engine/flurn_driver.h"
#include "quick/quick_template.h"
#include "session/connect_all.h"
#include "support/files/paths.h"
#include "tests/designs/own_designs.h"
#include "tests/engine/collage_fixture.h"

#include <filesystem>

namespace {

// Four photos in a collage that can be kept, as a quick style leaves it.
struct finished_session : four_photos {
    finished_session()
    {
        connect_all(all);
        main.data_folder = folder_of(folder_of(home.at("data/tmp/x")));
        for (const char * place : {"samples/x", "descriptions/x"})
            home.at(std::string("data/") + place);
        home.write("data/designs.ini",
                   "[Design001]\r\nName=Match\r\nStyle=Place\r\n[Design002]\r\nName=Quick "
                   "matrix\r\nStyle=Matrix\r\n");
        home.write("data/designs/__quick", text_of(quarters()));
        main.lblDesign.set_caption("Quick Block");
        main.design_record.file = "__quick";
        main.collage.quick_active = true;
        full_run();
    }
    std::string at(const std::string & name) const { return home.at("data/" + name); }
    // What the next preview leaves.
    void spoil()
    {
        home.write("data/designs/__quick", "0:0:9:9:0:0:0:0:\r\n");
        save_jpeg(plain(300, 450, blue), at("tmp/finished.jpg"));
    }
    rgb_triple sampled_at(int x, int y) const
    {
        return seen(load_picture(picture_format::jpeg, at("samples/saved600.jpg")), x, y);
    }
};

}  // namespace

TEST(last_flurn, keeps_its_layout_and_sample_whatever_previews_follow)
{
    finished_session session;
    session.spoil();
    session.main.optLandscape.select();
    session.main.run_landscape = true;
    session.main.square_background = true;
    session.main.lblDesign.set_caption("Matrix 2x3");
    save_as(session.desk, session.main, "Mine", {});
    EXPECT_EQ(read_file(session.at("designs/saved600")), text_of(quarters()));
    const std::string catalogue = read_file(session.at("designs.ini"));
    EXPECT_NE(catalogue.find("Style=Place\r\n"), std::string::npos);
    EXPECT_NE(catalogue.find("Background=Portrait\r\n"), std::string::npos);
    EXPECT_GT(session.sampled_at(60, 60).red, 150);
    EXPECT_GT(session.sampled_at(60, 400).blue, 150);
    EXPECT_TRUE(file_exists(session.at("designs/__quick"))) << "it is that of a later preview";
    EXPECT_FALSE(file_exists(session.at("tmp/last_flurn")));
    EXPECT_FALSE(file_exists(session.at("tmp/last_flurn.jpg")));
    EXPECT_FALSE(session.main.mnuSaveDesign.enabled());
}

TEST(last_flurn, is_the_finished_one_and_not_one_that_was_broken_off)
{
    finished_session session;
    session.home.write("data/designs/__quick", "0:0:1500:1000:0:0:0:0:\r\n");
    session.desk.on_pump(1, [&] { session.main.run.cancel_requested = true; });
    make_flurn(session.main, make_quick_template);
    EXPECT_EQ(session.desk.next_message(), "Flurning has been canceled.");
    save_as(session.desk, session.main, "Mine", {});
    EXPECT_EQ(read_file(session.at("designs/saved600")), text_of(quarters()));
}

TEST(last_flurn, a_square_one_can_t_be_saved_though_a_later_run_was_none)
{
    finished_session session;
    session.main.optSquare.select();
    session.full_run();
    session.main.square_background = false;
    session.main.mnuSaveDesign.click();
    EXPECT_EQ(session.desk.next_message(), "We can't save designs on a square background.  Sorry.");
}

TEST(last_flurn, shapes_and_orientation_are_those_of_the_run)
{
    finished_session session;
    {
        const updating quiet(session.main);
        session.main.optShapes.select();
        session.main.cmbShapes.set_text("Stars");
        session.main.optLandscape.select();
    }
    session.full_run();
    {
        const updating quiet(session.main);
        session.main.cmbShapes.set_text("Squares");
        session.main.optBlock.select();
        session.main.optPortrait.select();
    }
    session.spoil();
    save_as(session.desk, session.main, "Mine", {});
    const std::string catalogue = read_file(session.at("designs.ini"));
    EXPECT_NE(catalogue.find("Quick Shape=Yes\r\n"), std::string::npos);
    EXPECT_NE(catalogue.find("Background=Landscape\r\n"), std::string::npos);
    EXPECT_EQ(jpeg_size(session.at("samples/saved600.jpg")).value_or(picture_size{}).width, 450);
}

TEST(last_flurn, goes_with_the_session)
{
    finished_session session;
    EXPECT_TRUE(file_exists(session.at("tmp/last_flurn")));
    session.main.mnuQuit.click();
    EXPECT_FALSE(file_exists(session.at("tmp/last_flurn")));
    EXPECT_FALSE(file_exists(session.at("tmp/last_flurn.jpg")));
    session.home.write("data/tmp/last_flurn", "of a session that was killed");
    session.main.load();
    EXPECT_FALSE(file_exists(session.at("tmp/last_flurn")));
}

TEST(last_flurn, a_collage_that_can_t_be_kept_leaves_the_one_before)
{
    finished_session session;
    session.main.mnuSaveDesign.enable(false);
    session.main.collage.quick_active = false;
    session.spoil();
    session.full_run();
    EXPECT_EQ(read_file(session.at("tmp/last_flurn")), text_of(quarters()));
}

TEST(last_flurn, a_full_disk_costs_no_collage)
{
    finished_session session;
    forget_last_flurn(session.main);
    std::filesystem::create_directory(session.at("tmp/last_flurn"));
    EXPECT_TRUE(session.full_run());
    EXPECT_FALSE(session.main.last_flurn.is_kept);
    save_as(session.desk, session.main, "Mine", {});
    EXPECT_EQ(read_file(session.at("designs/saved600")), text_of(quarters()));
}
