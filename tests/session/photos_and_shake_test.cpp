#include "tests/session/opened_session.h"

namespace {

void three_photos(frmMain & main)
{
    for (const char * path : {"/a.jpg", "/b.jpg", "/c.jpg"})
        main.table[++main.table.last_photo] = path;
}

}  // namespace

TEST(chkRandom, ticking_it_shuffles_and_unticking_it_only_redraws)
{
    opened_session session;
    session.finish();
    three_photos(session.main);
    EXPECT_EQ(session.previews_of([&] { session.main.chkRandom.tick(true); }), 1);
    EXPECT_GT(session.draws, 0);
    session.draws = 0;
    EXPECT_EQ(session.previews_of([&] { session.main.chkRandom.tick(false); }), 1);
    EXPECT_EQ(session.draws, 0);
}

TEST(cmdShuffle, shuffles_and_redraws)
{
    opened_session session;
    session.finish();
    three_photos(session.main);
    EXPECT_EQ(session.previews_of([&] { session.main.cmdShuffle.click(); }), 1);
    EXPECT_GT(session.draws, 0);
}

TEST(chkMatch, redraws_as_does_chkEvolve)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { session.main.chkMatch.tick(true); }), 1);
    EXPECT_EQ(session.previews_of([&] { session.main.chkEvolve.tick(true); }), 1);
}

TEST(cmdMore, does_what_its_caption_says)
{
    opened_session session;
    session.finish();
    session.main.cmdMore.set_caption("Fewer photos");
    EXPECT_EQ(session.previews_of([&] { session.main.cmdMore.click(); }), 1);
    EXPECT_EQ(session.main.cmdMore.tag, "fewer");
    session.main.cmdMore.set_caption("More photos");
    session.main.cmdMore.click();
    EXPECT_EQ(session.main.cmdMore.tag, "");
}

TEST(cmbBlanks, redraws_only_while_it_shows)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { session.main.cmbBlanks.choose(2); }), 1);
    session.main.cmbBlanks.show(false);
    EXPECT_EQ(session.previews_of([&] { session.main.cmbBlanks.set_text("0"); }), 0);
}

TEST(chkRotate, rules_out_round_corners_with_one_preview)
{
    opened_session session;
    session.finish();
    session.main.chkRounded.tick(true);
    EXPECT_EQ(session.previews_of([&] { session.main.chkRotate.tick(true); }), 1);
    expect_states(session.main, "chkRounded0 chkRounded-");
    EXPECT_EQ(session.previews_of([&] { session.main.chkRotate.tick(false); }), 1);
    expect_states(session.main, "chkRounded0 chkRounded+");
}

TEST(shake_and_align, redraw_once_each)
{
    opened_session session;
    session.finish();
    frmMain & main = session.main;
    EXPECT_EQ(session.previews_of([&] { main.chkResize.tick(true); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.chkShuffle.tick(true); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.chkMix.tick(true); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.optAlignTop.select(); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.optAlignBottom.select(); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.optAlignCenter.select(); }), 1);
}
