#include "designs/catalogue/chosen_design.h"
#include "tests/designs/opened_browser.h"

TEST(browser_ok, leaves_section_name_and_orientation)
{
    opened_browser session(plain_designs(3));
    session.browser.optDesign[8].select();
    session.browser.cmdOk.click();
    EXPECT_EQ(session.main.lblDesign.tag, "Design003");
    EXPECT_EQ(session.main.lblDesign.caption(), "n3");
    EXPECT_EQ(session.main.design_record.name, "n3");
    EXPECT_TRUE(session.main.poster_tall);
    expect_states(session.main, "optPortrait1");
    EXPECT_FALSE(session.main.collage.design_rotated || session.main.collage.design_flipped ||
                 session.main.collage.design_mirrored);
    EXPECT_FALSE(session.browser.loaded());
}

TEST(browser_ok, a_landscape_turns_the_main_window)
{
    opened_browser session(plain_designs(1));
    session.main.poster_tall = true;
    session.browser.optLandscape.select();
    session.browser.cmdOk.click();
    EXPECT_FALSE(session.main.poster_tall);
    expect_states(session.main, "optLandscape1 optPortrait0");
    EXPECT_EQ(session.main.width(), 17750);
}

TEST(browser_ok, notes_the_ways_to_turn_the_design)
{
    struct row {
        check_box frmThemes::*box;
        bool collage::*flag;
    };
    for (const row & each : {row{&frmThemes::chkRandom, &collage::design_rotated},
                             row{&frmThemes::chkFlip, &collage::design_flipped},
                             row{&frmThemes::chkMirror, &collage::design_mirrored}}) {
        opened_browser session(design_section_text(1, "pile", {"Design=Scatter"}));
        (session.browser.*each.box).tick(true);
        session.browser.cmdOk.click();
        EXPECT_TRUE(session.main.collage.*each.flag);
        EXPECT_EQ(session.main.collage.design_rotated + session.main.collage.design_flipped +
                      session.main.collage.design_mirrored,
                  1);
    }
}

TEST(browser_ok, random_turns_of_a_scatter_hide_the_random_photos)
{
    opened_browser session(design_section_text(1, "pile", {"Design=Scatter"}));
    session.browser.optScatter.select();
    session.browser.chkRandom.tick(true);
    session.browser.cmdOk.click();
    EXPECT_FALSE(session.main.chkRandom.visible());
}

TEST(browser_ok, a_design_with_its_own_picture_has_no_border)
{
    struct row {
        const char * line;
        bool none;
    };
    for (const row & each :
         {row{"BG Image=autumn.jpg", true}, row{"BG Image=Either", false}, row{"BG Image=", false},
          row{"BG Image=None", false}, row{"BG Image=Solid", false}}) {
        opened_browser session(design_section_text(1, "one", {each.line}));
        session.main.optLarge.select();
        session.browser.cmdOk.click();
        EXPECT_EQ(session.main.optNone.selected(), each.none) << each.line;
    }
}

TEST(browser_ok, a_frame_design_without_frames_is_told_and_the_browser_stays)
{
    opened_browser session(design_section_text(1, "club", {"Design=Frame", "BG Image=wood.jpg"}));
    make_folder(joined(session.main.data_folder, "frames"));
    session.main.collage.frame_set_name = "gone";
    session.main.collage.frames_design = true;
    session.main.optLarge.select();
    session.browser.cmdOk.click();
    EXPECT_EQ(session.desk.next_message(), "You have no custom frames at this time.");
    EXPECT_TRUE(session.browser.loaded());
    EXPECT_EQ(session.main.lblDesign.tag, "");
    EXPECT_EQ(session.main.collage.frame_set_name, "");
    EXPECT_FALSE(session.main.collage.frames_design);
    EXPECT_TRUE(session.main.optNone.selected());
}

TEST(browser_ok, a_double_click_on_a_design_does_the_same)
{
    opened_browser session(plain_designs(3));
    session.browser.optDesign[1].select();
    fire(session.browser.optDesign[1].on_double_click);
    EXPECT_EQ(session.main.lblDesign.tag, "Design002");
    EXPECT_FALSE(session.browser.loaded());
}

TEST(browser_ok, a_double_click_on_a_design_that_is_gone_does_nothing)
{
    opened_browser session(plain_designs(3));
    session.folder.write("data/designs.ini", plain_designs(1));
    session.browser.optDesign[1].select();
    session.desk.next_message();
    fire(session.browser.optDesign[1].on_double_click);
    EXPECT_TRUE(session.browser.loaded());
}

TEST(browser_ok, without_a_design_does_nothing)
{
    opened_browser session("");
    session.browser.cmdOk.click();
    EXPECT_TRUE(session.browser.loaded());
}

TEST(browser_cancel, leaves_no_design)
{
    opened_browser session(plain_designs(3));
    session.browser.optDesign[1].select();
    session.browser.cmdCancel.click();
    EXPECT_EQ(session.main.lblDesign.tag, "");
    EXPECT_FALSE(session.browser.loaded());
}

TEST(browser_help, is_asked_for_by_its_button_and_by_the_keys)
{
    opened_browser session(plain_designs(1));
    session.browser.cmdHelp.click();
    session.browser.on_key(key::f1);
    session.browser.on_key(key::help);
    ASSERT_EQ(session.desk.opened_documents.size(), 3u);
    for (const std::string & document : session.desk.opened_documents)
        EXPECT_TRUE(document.ends_with("designs.htm")) << document;
}

TEST(take_design, a_square_stands_as_tall)
{
    opened_session session;
    take_design(session.main, {.section = "Design001", .name = "one", .shape = poster_shape::square});
    expect_states(session.main, "optSquare1");
    EXPECT_TRUE(session.main.poster_tall);
}
