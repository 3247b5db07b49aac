#include "designs/browser/theme_listing.h"

#include "support/platform_error.h"
#include "tests/designs/opened_browser.h"

namespace {

using items = std::vector<std::string>;

// Designs of every family, count and orientation.
const std::string mixed =
    design_section_text(1, "Quick matrix", {"Design=Block"}) +
    design_section_text(2, "Frame_matrix", {"Design=Frame"}) +
    design_section_text(3, "Lettering", {"Design=Block"}) +
    design_section_text(4, "Puzzle", {"Design=Block"}) +
    design_section_text(5, "Match", {"File=__match", "Design=Block"}) +
    design_section_text(6, "grid", {"File=__matrix", "Design=Matrix"}) +
    design_section_text(10, "wall", {"Design=Block", "Count=18"}) +
    design_section_text(11, "pile", {"Design=Scatter", "Count=7"}) +
    design_section_text(12, "sea",
                        {"Design=Theme", "Count=7", "Turn BG=No", "Background=Portrait", "Help Tip=Waves"}) +
    design_section_text(13, "night", {"Design=Theme", "Count=9", "Turn BG=No", "Background=Landscape"}) +
    design_section_text(14, "old", {"Design=Theme", "Ratio=3x4", "Distort=Yes"}) +
    design_section_text(600, "mine", {"Design=Saved", "System=No"});

}  // namespace

TEST(frmThemes, opens_on_all_designs_for_a_portrait)
{
    opened_browser session(mixed);
    session.browser.unload();
    session.main.lblDesign.tag = "Design010";
    session.browser.load();
    EXPECT_EQ(session.browser.caption(), "F l u r n   D e s i g n s");
    EXPECT_EQ(session.main.lblDesign.tag, "");
    EXPECT_EQ(session.listed(), "0:wall 1:pile 8:sea 9:mine");
    expect_states(session.browser, "optAll1 optPortrait1 optDesign_01 cmdOk+ cmdPage_plus- cmdPage_minus-");
    EXPECT_EQ(session.browser.selected_index, 0);
}

TEST(frmThemes, opens_anew_each_time)
{
    opened_browser session(mixed);
    session.browser.optTheme.select();
    session.browser.optLandscape.select();
    session.browser.chkFlip.tick(true);
    session.browser.chkMirror.tick(true);
    session.browser.unload();
    session.browser.load();
    EXPECT_EQ(session.listed(), "0:wall 1:pile 8:sea 9:mine");
    expect_states(session.browser, "optAll1 optTheme0 optPortrait1 optLandscape0 chkFlip0 chkMirror0");
    EXPECT_EQ(session.browser.width(), 11430);
}

TEST(GetDesigns, each_family_shows_its_own)
{
    struct row {
        option_button frmThemes::*option;
        const char * listed;
    };
    opened_browser session(mixed);
    for (const row & each : {row{&frmThemes::optScatter, "0:pile"}, row{&frmThemes::optBlock, "0:wall"},
                             row{&frmThemes::optTheme, "0:sea"}, row{&frmThemes::optSaved, "0:mine"},
                             row{&frmThemes::optAll, "0:wall 1:pile 8:sea 9:mine"}}) {
        (session.browser.*each.option).select();
        EXPECT_EQ(session.listed(), each.listed);
    }
}

TEST(GetDesigns, a_slot_tells_name_section_and_help_tip)
{
    opened_browser session(mixed);
    const option_button & sea = session.browser.optDesign[8];
    EXPECT_EQ(sea.caption(), "sea");
    EXPECT_EQ(sea.tag, "Design012");
    EXPECT_EQ(sea.tool_tip(), "Waves");
    EXPECT_EQ(session.browser.optDesign[0].tool_tip(), "No information available");
}

TEST(GetDesigns, a_landscape_design_that_may_not_be_turned_is_not_listed_for_portrait)
{
    opened_browser session(mixed);
    session.browser.optTheme.select();
    EXPECT_EQ(session.listed(), "0:sea");
    session.browser.optLandscape.select();
    EXPECT_EQ(session.listed(), "0:night");
}

TEST(GetDesigns, a_family_without_designs_shows_nothing_and_can_t_be_confirmed)
{
    opened_browser session(design_section_text(1, "wall", {"Design=Block"}));
    session.browser.optTheme.select();
    EXPECT_EQ(session.listed(), "");
    EXPECT_EQ(session.selected(), "");
    EXPECT_EQ(session.browser.selected_index, -1);
    expect_states(
        session.browser,
        "cmdOk- cmdNext- cmdPrevious- cmdPage_plus- cmdPage_minus- picSample_ txtDescription_ chkRandom_");
}

TEST(GetDesigns, a_catalogue_without_a_section_shows_nothing)
{
    const opened_browser session("");
    EXPECT_EQ(session.listed(), "");
    EXPECT_EQ(session.browser.cmbDesign.items(), items{"Any number"});
}

TEST(GetDesigns, a_missing_catalogue_raises_file_not_found)
{
    opened_browser session("");
    delete_file(joined(session.main.data_folder, "designs.ini"));
    try {
        session.browser.optBlock.select();
        ADD_FAILURE() << "nothing was raised";
    } catch (const platform_error & error) {
        EXPECT_EQ(code(error), 53);
    }
}

// ---- photo counts

TEST(cmbDesign, lists_each_count_once_and_those_of_one_digit_with_a_leading_blank)
{
    const opened_browser session(mixed);
    EXPECT_EQ(session.browser.cmbDesign.items(), (items{"Any number", "18 images", " 7 images"}));
    EXPECT_EQ(session.browser.cmbDesign.text(), "Any number");
}

TEST(cmbDesign, a_choice_keeps_the_list_and_the_designs_of_that_count_or_none)
{
    opened_browser session(mixed);
    session.browser.cmbDesign.choose(2);
    EXPECT_EQ(session.listed(), "0:pile 1:sea 8:mine");
    EXPECT_EQ(session.browser.cmbDesign.items(), (items{"Any number", "18 images", " 7 images"}));
    EXPECT_EQ(session.browser.cmbDesign.text(), " 7 images");
    session.browser.cmbDesign.choose(0);
    EXPECT_EQ(session.listed(), "0:wall 1:pile 8:sea 9:mine");
}

TEST(cmbDesign, a_family_makes_the_list_anew)
{
    opened_browser session(mixed);
    session.browser.cmbDesign.choose(1);
    session.browser.optTheme.select();
    EXPECT_EQ(session.listed(), "0:sea");
    EXPECT_EQ(session.browser.cmbDesign.items(), (items{"Any number", " 7 images"}));
    EXPECT_EQ(session.browser.cmbDesign.text(), "Any number");
}

TEST(cmbDesign, a_choice_goes_back_to_the_first_page)
{
    opened_browser session(plain_designs(20) + design_section_text(90, "ten", {"Count=10"}));
    session.browser.cmdPage_plus.click();
    session.browser.cmbDesign.choose(1);
    EXPECT_TRUE(session.listed().starts_with("0:n1 "));
    EXPECT_EQ(session.browser.page_start, 14);
}

// ---- messages

TEST(optSaved, tells_that_nothing_has_been_saved_yet)
{
    opened_browser session(design_section_text(1, "wall", {"Design=Block"}));
    session.browser.optSaved.select();
    EXPECT_EQ(session.desk.next_message(), "You don't have any saved designs yet.");
}

TEST(optFrames, tells_that_there_are_no_frames_and_lists_the_designs_all_the_same)
{
    opened_browser session(design_section_text(1, "club", {"Design=Frame"}));
    make_folder(joined(session.main.data_folder, "frames"));
    session.main.collage.frame_set_name = "gone";
    session.browser.optFrames.select();
    EXPECT_EQ(session.desk.next_message(),
              "You will not be able to use any of these custom frame designs\r\n"
              "until you create one of your own custom frames.\r\n"
              "\r\n"
              "You have no custom frames at this time.");
    EXPECT_EQ(session.listed(), "0:club");
    EXPECT_EQ(session.main.collage.frame_set_name, "");
}

TEST(optFrames, is_silent_when_there_are_frames)
{
    opened_browser session(design_section_text(1, "club", {"Design=Frame"}));
    session.folder.write("data/frames/gold/design.ini", "");
    session.browser.optFrames.select();
    EXPECT_EQ(session.listed(), "0:club");
}

// ---- the two layouts

TEST(frmThemes, each_orientation_has_its_layout)
{
    opened_browser session(plain_designs(1));
    EXPECT_EQ(session.browser.picSample.place(), (box{432, 30, 300, 450}));
    EXPECT_EQ(session.browser.width(), 11430);
    EXPECT_EQ(session.browser.height(), 8760);
    EXPECT_EQ(session.browser.frmButtons.place().left, 152);
    session.browser.optLandscape.select();
    EXPECT_EQ(session.browser.picSample.place(), (box{424, 96, 450, 300}));
    EXPECT_EQ(session.browser.width(), 13410);
    EXPECT_EQ(session.browser.height(), 8760);
    EXPECT_EQ(session.browser.frmButtons.place().left, 220);
}

TEST(frmThemes, a_resize_keeps_the_size_of_its_orientation)
{
    opened_browser session(plain_designs(1));
    session.browser.optLandscape.select();
    session.browser.resize(5000, 5000);
    EXPECT_EQ(session.browser.width(), 13410);
    EXPECT_EQ(session.browser.height(), 8760);
}

TEST(frmThemes, an_orientation_clears_the_sample_and_begins_at_the_first_page)
{
    opened_browser session(plain_designs(20));
    session.folder.write("install/samples/not_yet.jpg", "");
    session.browser.picSample.load("a.jpg");
    session.browser.cmdPage_plus.click();
    session.browser.optLandscape.select();
    EXPECT_EQ(session.browser.picSample.file(), "");
    EXPECT_FALSE(session.browser.picSample.visible());
    EXPECT_TRUE(session.listed().starts_with("0:n1 "));
}
