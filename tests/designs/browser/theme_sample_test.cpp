#include "designs/browser/theme_sample.h"

#include "designs/browser/theme_listing.h"
#include "support/files/paths.h"
#include "tests/designs/opened_browser.h"

namespace {

opened_browser session_with(const std::vector<std::string> & lines)
{
    return opened_browser(design_section_text(1, "one", lines));
}

}  // namespace

TEST(optDesign, reads_its_record)
{
    opened_browser session(plain_designs(3));
    session.browser.optDesign[8].select();
    EXPECT_EQ(session.main.design_record.name, "n3");
    EXPECT_EQ(session.main.design_record.section, "Design003");
    EXPECT_EQ(session.browser.selected_index, 8);
}

TEST(optDesign, a_design_that_is_gone_is_told_and_can_t_be_chosen)
{
    opened_browser session(plain_designs(3));
    session.folder.write("data/designs.ini", plain_designs(2));
    session.browser.optDesign[8].select();
    EXPECT_EQ(session.desk.next_message(), "Design is missing in designs.ini file.");
    expect_states(session.browser, "cmdOk- optDesign_81");
    session.browser.optDesign[1].select();
    expect_states(session.browser, "cmdOk+");
}

TEST(optDesign, of_two_designs_with_one_name_shows_and_takes_the_one_that_was_meant)
{
    opened_browser session(design_section_text(600, "Heart", {"Description=first", "Count=3"}) +
                           design_section_text(601, "Star", {}) +
                           design_section_text(602, "Heart", {"Help Tip=the second"}) +
                           design_section_text(603, "Star", {"Turn BG=No", "Background=Landscape"}));
    EXPECT_EQ(session.listed(), "0:Heart (600) 1:Star (601) 8:Heart (602)");
    session.browser.optDesign[8].select();
    EXPECT_EQ(session.main.design_record.section, "Design602");
    EXPECT_EQ(session.main.design_record.help_tip, "the second");
    session.browser.cmdOk.click();
    EXPECT_EQ(session.main.lblDesign.tag, "Design602");
    EXPECT_EQ(session.main.lblDesign.caption(), "Heart");
}

TEST(optDesign, a_section_that_another_design_has_taken_is_told)
{
    opened_browser session(plain_designs(3));
    session.folder.write("data/designs.ini", plain_designs(2) + design_section_text(3, "another", {}));
    session.browser.optDesign[8].select();
    EXPECT_EQ(session.desk.next_message(), "Design is missing in designs.ini file.");
    expect_states(session.browser, "cmdOk-");
}

TEST(optDesign, says_how_the_caption_is_cleared_where_the_design_does_not)
{
    struct row {
        const char *design, *line, *expected;
    };
    for (const row & each : {row{"Design=Scatter", "", "Adjust"}, row{"Design=Block", "", "Same"},
                             row{"Design=Scatter", "Caption Clear=Yes", "Yes"}})
        EXPECT_EQ(session_with({each.design, each.line}).main.design_record.caption_clear, each.expected);
}

TEST(optDesign, offers_random_turns_for_a_scatter_alone)
{
    opened_browser session(design_section_text(1, "one", {"Design=Scatter"}) +
                           design_section_text(2, "two", {"Design=Scatter"}) +
                           design_section_text(3, "three", {"Design=Block"}));
    EXPECT_TRUE(session.browser.chkRandom.visible());
    session.browser.chkRandom.tick(true);
    session.browser.optDesign[1].select();
    expect_states(session.browser, "chkRandom^ chkRandom0");
    session.browser.chkRandom.tick(true);
    session.browser.optDesign[8].select();
    expect_states(session.browser, "chkRandom_ chkRandom0");
}

TEST(optDesign, a_design_that_may_not_be_flipped_loses_flip_and_mirror)
{
    opened_browser session(design_section_text(1, "one", {}) + design_section_text(2, "two", {"Flip=No"}));
    session.browser.chkFlip.tick(true);
    session.browser.chkMirror.tick(true);
    session.browser.optDesign[8].select();
    expect_states(session.browser, "chkFlip- chkMirror- chkFlip0 chkMirror0");
    session.browser.optDesign[0].select();
    expect_states(session.browser, "chkFlip+ chkMirror+ chkFlip0");
}

// ---- samples

TEST(sample, comes_from_the_program_or_for_the_user_s_own_designs_from_the_data_folder)
{
    opened_browser session(
        design_section_text(1, "one", {"Sample=a.jpg", "Background=Portrait"}) +
        design_section_text(600, "two", {"Sample=b.jpg", "Background=Portrait", "System=No"}));
    const std::string ours = session.folder.write("install/samples/a.jpg", "");
    const std::string theirs = session.folder.write("data/samples/b.jpg", "");
    session.browser.optDesign[8].select();
    EXPECT_EQ(session.browser.picSample.file(), theirs);
    session.browser.optDesign[0].select();
    EXPECT_EQ(session.browser.picSample.file(), ours);
    EXPECT_TRUE(session.browser.picSample.visible());
}

TEST(sample, of_a_design_seen_the_other_way_is_its_twin)
{
    opened_browser session(design_section_text(1, "one", {"Sample=a.jpg", "Background=Landscape"}));
    const std::string twin = session.folder.write("install/samples/a.jpg_", "");
    const std::string own = session.folder.write("install/samples/a.jpg", "");
    session.browser.optScatter.select();
    session.browser.optAll.select();
    EXPECT_EQ(session.browser.picSample.file(), twin);
    session.browser.optLandscape.select();
    EXPECT_EQ(session.browser.picSample.file(), own);
}

TEST(sample, that_is_missing_is_not_yet_there)
{
    const opened_browser session = session_with({"Sample=a.jpg", "System=No"});
    EXPECT_EQ(session.browser.picSample.file(), joined(session.main.install_folder, "samples/not_yet.jpg"));
    EXPECT_TRUE(session.browser.picSample.visible());
}

TEST(sample, that_the_design_doesn_t_name_is_hidden)
{
    const opened_browser session = session_with({});
    EXPECT_FALSE(session.browser.picSample.visible());
}

// ---- descriptions

namespace {

std::string described(const std::vector<std::string> & lines)
{
    opened_browser session(design_section_text(1, "other", {}) + design_section_text(2, "one", lines));
    session.folder.write("install/description_list",
                         "[a]\r\nA wall _\r\nof photos.\r\nTry it.\r\n[b]\r\nx\r\n");
    session.folder.write("data/descriptions/saved600", "My own _\r\nwords.\r\n");
    session.browser.optDesign[8].select();
    EXPECT_TRUE(session.browser.txtDescription.visible());
    return session.browser.txtDescription.text();
}

}  // namespace

TEST(txtDescription, takes_the_section_of_the_program_s_list)
{
    EXPECT_EQ(described({"Description=a"}), "A wall of photos.\r\nTry it.\r\n");
}

TEST(txtDescription, of_the_user_s_own_design_is_a_file)
{
    EXPECT_EQ(described({"System=No", "Description=saved600"}), "My own words.\r\n");
}

TEST(txtDescription, of_the_user_s_own_design_without_its_file_is_looked_for_in_the_list)
{
    EXPECT_EQ(described({"System=No", "Description=b"}), "x\r\n");
}

TEST(txtDescription, that_is_missing_says_so)
{
    EXPECT_EQ(described({}), "No description available");
    EXPECT_EQ(described({"Description=none"}), "No description available");
    EXPECT_EQ(described({"Description=saved600"}), "No description available");
}

TEST(txtDescription, without_the_list_says_so)
{
    const opened_browser session = session_with({"Description=a"});
    EXPECT_EQ(session.browser.txtDescription.text(), "No description available");
}

// ---- which way there is more

TEST(optDesign, the_first_of_the_first_page_has_none_before_it)
{
    opened_browser session(plain_designs(16));
    session.browser.optDesign[3].select();
    EXPECT_TRUE(session.browser.cmdPrevious.enabled());
    session.browser.optDesign[0].select();
    EXPECT_FALSE(session.browser.cmdPrevious.enabled());
    session.browser.cmdPage_plus.click();
    session.browser.optDesign[8].select();
    session.browser.optDesign[0].select();
    EXPECT_TRUE(session.browser.cmdPrevious.enabled());
}

TEST(optDesign, one_that_has_another_behind_it_brings_next_back)
{
    opened_browser session(plain_designs(3));
    session.browser.cmdNext.click();
    session.browser.cmdNext.click();
    EXPECT_FALSE(session.browser.cmdNext.enabled());
    session.browser.optDesign[1].select();  // the slot behind it is empty, the next design stands in slot 8
    EXPECT_TRUE(session.browser.cmdNext.enabled());
}

TEST(picDesign, shows_the_sample_beside_the_name_and_selects_the_design)
{
    opened_browser session(design_section_text(1, "one", {"Sample=a.jpg"}) +
                           design_section_text(2, "two", {"Sample=gone.jpg"}) +
                           design_section_text(3, "three", {}));
    const std::string ours = session.folder.write("install/samples/a.jpg", "");
    GetDesigns(session.browser, session.main, count_list::made_anew);
    EXPECT_EQ(session.browser.picDesign[0].file(), ours);
    EXPECT_EQ(session.browser.picDesign[1].file(),
              joined(session.main.install_folder, "samples/not_yet.jpg"));
    EXPECT_TRUE(session.browser.picDesign[1].visible());
    EXPECT_FALSE(session.browser.picDesign[8].visible());
    EXPECT_FALSE(session.browser.picDesign[2].visible());
    session.browser.picDesign[1].click();
    EXPECT_EQ(session.browser.selected_index, 1);
    EXPECT_EQ(session.main.design_record.name, "two");
}
