#include "tests/session/opened_session.h"

TEST(txtCaption, a_text_may_be_cleared_and_an_empty_one_not)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { session.main.txtCaption.set_text("Summer"); }), 1);
    expect_states(session.main, "chkClear+");
    session.main.chkClear.tick(true);
    session.main.txtCaption.set_text("");
    expect_states(session.main, "chkClear- chkClear0");
}

TEST(txtCaption, leaves_the_clearing_to_a_design_that_settles_it)
{
    opened_session session;
    session.main.chkClear.enable(false);
    session.main.design_record.caption_clear = "Same";
    session.main.txtCaption.set_text("Summer");
    expect_states(session.main, "chkClear-");
    session.main.design_record.caption_clear = "Yes";
    session.main.txtCaption.set_text("Winter");
    expect_states(session.main, "chkClear+");
}

TEST(txtCaption, a_matrix_of_this_session_keeps_the_clearing_as_it_is)
{
    opened_session session;
    session.main.collage.matrix_session = true;
    session.main.chkClear.enable(false);
    session.main.txtCaption.set_text("Summer");
    expect_states(session.main, "chkClear-");
}

TEST(caption, place_and_clearing_are_drawn_once_each)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { session.main.optBottom.select(); }), 1);
    EXPECT_EQ(session.previews_of([&] { session.main.optTop.select(); }), 1);
    EXPECT_EQ(session.previews_of([&] { session.main.chkClear.tick(true); }), 1);
}

TEST(cmbSize, gives_the_caption_its_size)
{
    opened_session session;
    session.finish();
    session.main.txtCaption.set_font({.name = "Serif", .size = 16, .bold = true});
    EXPECT_EQ(session.previews_of([&] { session.main.cmbSize.choose(6); }), 1);
    EXPECT_EQ(session.main.txtCaption.tag, "160");
    EXPECT_EQ(session.main.lblFont.caption(), "Serif x 160");
    EXPECT_EQ(session.main.txtCaption.font(), (font_style{.name = "Serif", .size = 24, .bold = true}));
}

TEST(cmbSize, cuts_what_is_typed_into_range_and_takes_it)
{
    struct row {
        const char *typed, *shown;
    };
    for (const row & each : {row{"400", "400"}, row{"401", "260"}, row{"0.5", "40"}, row{"", "40"},
                             row{"1", "1"}, row{"85", "85"}}) {
        opened_session session;
        session.main.cmbSize.set_text(each.typed);
        EXPECT_EQ(session.main.cmbSize.text(), each.shown) << each.typed;
        EXPECT_EQ(session.main.txtCaption.tag, each.shown) << each.typed;
    }
}
