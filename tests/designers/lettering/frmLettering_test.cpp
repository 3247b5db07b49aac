#include "support/files/paths.h"
#include "tests/designers/designer_session.h"

namespace {

using lines = std::vector<std::string>;

struct lettering_window : designer_session {
    lettering_window() { window.load(); }
    frmLettering & window = all.lettering;
};

}  // namespace

TEST(frmLettering, ok_waits_for_a_text)
{
    const lettering_window session;
    EXPECT_EQ(session.window.caption(), "L e t t e r i n g   F l u r n");
    expect_states(session.window, "cmdOk- optAlign1 chkOverlap0 chkCenter0 optRounded1 optPortrait1");
    session.window.txtLettering.set_text("a");
    expect_states(session.window, "cmdOk+");
    session.window.txtLettering.set_text("");
    expect_states(session.window, "cmdOk-");
}

TEST(frmLettering, the_box_has_the_shape_of_the_poster)
{
    const lettering_window session;
    EXPECT_EQ(session.window.txtLettering.place(), (box{0, 0, 285, 428}));
    session.window.optLandscape.select();
    EXPECT_EQ(session.window.txtLettering.place(), (box{0, 0, 428, 285}));
    session.window.optSquare.select();
    EXPECT_EQ(session.window.txtLettering.place(), (box{0, 0, 285, 285}));
}

TEST(frmLettering, writes_the_letters_and_sets_the_design)
{
    const lettering_window session;
    session.folder.write("data/designs/__matrix", "1");
    session.main.collage.matrix_session = true;
    session.window.txtLettering.set_text("Hi");
    session.window.cmdOk.click();
    EXPECT_EQ(session.lines_of("__lettering"),
              (lines{"-52:50:0:1014:0:0:-1:0:alpha/char_h.gif", "100:1086:0:845:0:0:-1:0:alpha/char_i.gif"}));
    const frmMain & main = session.main;
    EXPECT_EQ(main.lblDesign.caption(), "Lettering");
    EXPECT_EQ(main.lblDesign.tag, "Lettering");
    EXPECT_EQ(main.design_record.file, "__lettering");
    EXPECT_TRUE(main.poster_tall);
    EXPECT_FALSE(main.collage.matrix_session);
    EXPECT_FALSE(file_exists(joined(main.data_folder, "designs/__matrix")));
    EXPECT_FALSE(session.window.loaded());
    expect_states(main, "picSample_ optPortrait1 mnuSaveDesign-");
}

TEST(frmLettering, the_poster_stands_as_chosen)
{
    struct row {
        option_button frmLettering::*option;
        const char * expected;
        bool tall;
    };
    for (const row & each : {row{&frmLettering::optLandscape, "optLandscape1", false},
                             row{&frmLettering::optSquare, "optSquare1", true},
                             row{&frmLettering::optPortrait, "optPortrait1", true}}) {
        const lettering_window session;
        (session.window.*each.option).select();
        session.window.txtLettering.set_text("Hi");
        session.window.cmdOk.click();
        expect_states(session.main, each.expected);
        EXPECT_EQ(session.main.poster_tall, each.tall) << each.expected;
    }
}

TEST(frmLettering, comes_back_as_it_was_left)
{
    const lettering_window session;
    frmLettering & window = session.window;
    window.txtLettering.set_text("One\nTwo");
    window.optSerpent.select();
    window.chkOverlap.tick(true);
    window.chkCenter.tick(true);
    window.optSerif.select();
    window.optSquare.select();
    window.cmdOk.click();
    window.txtLettering.set_text("");
    window.optOffset.select();
    window.chkOverlap.tick(false);
    window.chkCenter.tick(false);
    window.optSturdy.select();
    window.optLandscape.select();
    window.load();
    EXPECT_EQ(window.txtLettering.text(), "One\nTwo");
    expect_states(window, "optSerpent1 chkOverlap1 chkCenter1 optSerif1 optSquare1 cmdOk+");
}

TEST(frmLettering, the_letters_are_those_of_the_chosen_alphabet)
{
    const lettering_window session;
    session.window.txtLettering.set_text("i");
    session.window.optSturdy.select();
    session.window.cmdOk.click();
    EXPECT_EQ(session.lines_of("__lettering"), (lines{"100:50:0:1900:0:0:-1:0:alpha/sturdy/char_i.gif"}));
}

TEST(frmLettering, each_alphabet_is_shown_and_chosen_by_its_letters)
{
    const lettering_window session;
    frmLettering & window = session.window;
    struct row {
        picture * sample;
        const char * file;
        const char * expected;
    };
    for (const row & each : {row{&window.picSerif, "images/letters_serif.png", "optSerif1"},
                             row{&window.picSturdy, "images/letters_sturdy.png", "optSturdy1"},
                             row{&window.picRounded, "images/letters_rounded.png", "optRounded1"}}) {
        EXPECT_EQ(each.sample->file(), joined(session.main.install_folder, each.file));
        each.sample->click();
        expect_states(window, each.expected);
    }
}

TEST(frmLettering, an_empty_text_leaves_without_writing)
{
    const lettering_window session;
    session.window.cmdOk.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_TRUE(session.lines_of("__lettering").empty());
    EXPECT_EQ(session.main.lblDesign.tag, "");
}

TEST(frmLettering, what_cannot_be_lettered_is_told_and_nothing_is_lost)
{
    lettering_window session;
    session.folder.write("data/designs/__lettering", "old\r\n");
    session.window.txtLettering.set_text("... !?");
    session.window.cmdOk.click();
    EXPECT_EQ(session.desk.next_message(), "There are no letters or digits in that text.");
    session.window.txtLettering.set_text(std::string(2000, 'W'));
    session.window.cmdOk.click();
    EXPECT_EQ(session.desk.next_message(),
              "There is no room for so many letters.\r\n\r\nPlease shorten the text.");
    EXPECT_TRUE(session.window.loaded());
    EXPECT_EQ(session.window.txtLettering.text().size(), 2000U);
    EXPECT_EQ(session.lines_of("__lettering"), lines{"old"});
    EXPECT_EQ(session.main.lblDesign.tag, "");
}

TEST(frmLettering, a_cancel_leaves_the_design_alone)
{
    const lettering_window session;
    session.window.txtLettering.set_text("Hi");
    session.window.cmdCancel.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_TRUE(session.lines_of("__lettering").empty());
    EXPECT_EQ(session.main.lblDesign.tag, "");
}
