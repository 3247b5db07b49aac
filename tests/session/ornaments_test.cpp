#include "tests/session/opened_session.h"

namespace {

// Types a size as a user does and tells how many previews it made.
int previews_of_typing(opened_session & session, combo_box & list, const char * text)
{
    return session.previews_of([&] { list.set_text(text); });
}

}  // namespace

TEST(chkRounded, ticking_it_unticks_the_other_two_and_hides_the_sizes)
{
    opened_session session;
    session.main.chkCaption.tick(true);
    session.main.chkRounded.tick(true);
    expect_states(session.main, "chkRounded1 chkCaption0 chkSoftEdge0 frmHideOrnaments_");
    session.main.chkRounded.tick(false);
    expect_states(session.main, "frmHideOrnaments^");
}

TEST(chkRounded, draws_no_preview_of_its_own_for_a_scatter)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { session.main.chkRounded.tick(true); }), 1);
    session.main.optScatter.on_click = nullptr;
    session.main.optScatter.select();
    EXPECT_EQ(session.previews_of([&] { session.main.chkRounded.tick(false); }), 0);
}

TEST(chkSoftEdge, ticking_it_unticks_the_other_two_with_one_preview)
{
    opened_session session;
    session.finish();
    session.main.chkRounded.tick(true);
    EXPECT_EQ(session.previews_of([&] { session.main.chkSoftEdge.tick(true); }), 1);
    expect_states(session.main, "chkRounded0 chkCaption0 chkSoftEdge1 frmHideOrnaments_");
    EXPECT_EQ(session.main.chkSoftEdge.tag, "");
    EXPECT_EQ(session.previews_of([&] { session.main.chkSoftEdge.tick(false); }), 1);
    expect_states(session.main, "frmHideOrnaments^");
}

TEST(chkCaption, ticking_it_unticks_the_other_two_with_one_preview)
{
    opened_session session;
    session.finish();
    session.main.chkSoftEdge.tick(true);
    EXPECT_EQ(session.previews_of([&] { session.main.chkCaption.tick(true); }), 1);
    expect_states(session.main, "chkRounded0 chkCaption1 chkSoftEdge0 frmHideOrnaments_");
    EXPECT_EQ(session.main.chkSoftEdge.tag, "");
    EXPECT_EQ(session.previews_of([&] { session.main.chkCaption.tick(false); }), 1);
    expect_states(session.main, "frmHideOrnaments^");
}

TEST(chkCaption, a_skip_that_was_not_used_up_shows_no_sizes_once)
{
    opened_session session;
    session.main.chkRounded.tick(true);  // leaves the tag, since the captions were off
    EXPECT_EQ(session.main.chkCaption.tag, "Skip");
    session.main.chkCaption.tick(true);
    EXPECT_EQ(session.main.chkCaption.tag, "");
    session.main.chkCaption.tick(false);
    expect_states(session.main, "frmHideOrnaments^");
}

TEST(ornaments, two_ticks_in_a_row_leave_only_the_last_and_the_sizes_hidden)
{
    opened_session session;
    session.main.chkCaption.tick(true);
    session.main.chkSoftEdge.tick(true);
    expect_states(session.main, "chkCaption0 chkSoftEdge1 frmHideOrnaments_");
    session.main.chkCaption.tick(true);
    expect_states(session.main, "chkCaption1 chkSoftEdge0 frmHideOrnaments_");
}

TEST(cmbFrame, cuts_what_is_typed_into_range)
{
    struct row {
        const char *typed, *shown;
    };
    for (const row & each :
         {row{"70", "60"}, row{"60", "60"}, row{"60.5", "60"}, row{"0.5", "0"}, row{"-3", "0"}, row{"", "0"},
          row{"abc", "0"}, row{"1", "1"}, row{"17", "17"}, row{"0", "0"}, row{"00", "0"}}) {
        opened_session session;
        session.main.cmbFrame.set_text(each.typed);
        EXPECT_EQ(session.main.cmbFrame.text(), each.shown) << each.typed;
        EXPECT_EQ(session.main.last_frame_size, each.shown) << each.typed;
    }
}

TEST(cmbFrame, waits_for_the_digits_behind_a_point_or_sign_while_it_is_typed_into)
{
    for (const char * text : {"0.5", "0,5", "-5", ".5"}) {
        opened_session session;
        const std::string typed = text;
        combo_box & list = session.main.cmbFrame;
        for (std::size_t i = 0; i < typed.size(); ++i)
            list.set_text(i == 0 ? typed.substr(0, 1) : list.text() + typed[i]);
        EXPECT_EQ(list.text(), "0") << text;
    }
}

TEST(cmbFrame, is_a_number_again_when_the_keyboard_leaves_it)
{
    for (combo_box frmMain::*each : {&frmMain::cmbFrame, &frmMain::cmbShadow}) {
        opened_session session;
        session.finish();
        combo_box & list = session.main.*each;
        list.set_text("0");
        list.set_text("0.");
        EXPECT_EQ(session.previews_of([&] { fire(list.on_leave); }), 0);
        EXPECT_EQ(list.text(), "0");
    }
}

TEST(cmbFrame, no_frame_needs_no_colour)
{
    opened_session session;
    session.main.cmbFrame.set_text("0.2");
    expect_states(session.main, "cmdFrameColor- picFrameColor_");
    session.main.cmbFrame.choose(1);
    expect_states(session.main, "cmdFrameColor+ picFrameColor^");
}

TEST(cmbFrame, redraws_only_when_the_size_on_the_sample_changes)
{
    struct row {
        const char *before, *after;
        int previews;
    };
    for (const row & each :
         {row{"10", "11", 0}, row{"11", "12", 1}, row{"12", "17", 0}, row{"17", "18", 1}, row{"0", "1", 1},
          row{"1", "0", 1}, row{"1", "5", 0}, row{"5", "6", 1}, row{"0", "4", 1}, row{"10", "70", 1}}) {
        opened_session session;
        session.main.cmbFrame.set_text(each.before);
        session.finish();
        session.main.in_preview = true;
        EXPECT_EQ(previews_of_typing(session, session.main.cmbFrame, each.after), each.previews)
            << each.before << " to " << each.after;
    }
}

TEST(cmbFrame, waits_for_the_first_preview)
{
    opened_session session;
    session.finish();
    session.main.in_preview = false;
    EXPECT_EQ(previews_of_typing(session, session.main.cmbFrame, "40"), 0);
}

TEST(cmbShadow, cuts_what_is_typed_into_range)
{
    struct row {
        const char *typed, *shown;
    };
    for (const row & each :
         {row{"70", "50"}, row{"50", "50"}, row{"0.9", "0"}, row{"", "0"}, row{"3", "3"}}) {
        opened_session session;
        session.main.cmbShadow.set_text(each.typed);
        EXPECT_EQ(session.main.cmbShadow.text(), each.shown) << each.typed;
    }
}

TEST(cmbShadow, no_shadow_needs_no_colour_and_each_change_is_one_preview)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { session.main.cmbShadow.choose(0); }), 1);
    expect_states(session.main, "cmdShadowColor- picShadowColor_");
    EXPECT_EQ(previews_of_typing(session, session.main.cmbShadow, "99"), 1);
    expect_states(session.main, "cmdShadowColor+ picShadowColor^");
}

TEST(swatches, take_the_colour_that_is_chosen)
{
    opened_session session;
    session.finish();
    session.desk.will_choose_color(0x112233);
    EXPECT_EQ(session.previews_of([&] { session.main.cmdFrameColor.click(); }), 1);
    EXPECT_EQ(session.main.picFrameColor.back_color(), 0x112233u);
    session.desk.will_choose_color(0x445566);
    EXPECT_EQ(session.previews_of([&] { session.main.picShadowColor.click(); }), 1);
    EXPECT_EQ(session.main.picShadowColor.back_color(), 0x445566u);
    session.desk.will_choose_color(0x778899);
    session.main.picFrameColor.click();
    EXPECT_EQ(session.main.picFrameColor.back_color(), 0x778899u);
    session.desk.will_choose_color(0xAABBCC);
    session.main.cmdShadowColor.click();
    EXPECT_EQ(session.main.picShadowColor.back_color(), 0xAABBCCu);
}

TEST(swatches, keep_their_colour_on_a_cancel)
{
    opened_session session;
    session.finish();
    session.desk.will_choose_color(std::nullopt);
    EXPECT_EQ(session.previews_of([&] { session.main.cmdFrameColor.click(); }), 0);
    EXPECT_EQ(session.main.picFrameColor.back_color(), 0xFFFFFFu);
}
