#include "session/main_window/redraw.h"

#include "tests/quick/quick_session.h"

namespace {

// In the midst of a collage of blocks.
struct started_session : quick_session {
    started_session() { start(); }
};

}  // namespace

TEST(refresh_preview, is_void_while_a_guard_stands)
{
    opened_session session;
    session.finish();
    EXPECT_EQ(session.previews_of([&] { refresh_preview(session.main); }), 1);
    session.main.preview_blocked = true;
    EXPECT_EQ(session.previews_of([&] { refresh_preview(session.main); }), 0);
    session.main.preview_blocked = false;
    const updating quiet(session.main);
    EXPECT_EQ(session.previews_of([&] { refresh_preview(session.main); }), 0);
}

TEST(redraw_sample, shows_the_picture_that_was_made_and_leaves_the_window_open)
{
    opened_session session;
    session.finish();
    session.main.picSample.show(false);
    session.main.frmShake.enable(false);
    redraw_sample(session.main);
    EXPECT_EQ(session.main.picSample.file(), joined(session.main.data_folder, "tmp/finished.jpg"));
    expect_states(session.main, "picSample^ frmOutput+ frmShake- frmDisplay+ cmdFlurn+ cmdHelp+");
    EXPECT_FALSE(session.main.preview_blocked);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(redraw_sample, does_not_start_another_one_from_inside)
{
    opened_session session;
    session.finish();
    bool tried = false;
    session.main.picSample.on_shown_change = [&] {
        if (!tried) {
            tried = true;
            refresh_preview(session.main);
        }
    };
    EXPECT_EQ(session.previews_of([&] { redraw_sample(session.main); }), 1);
    EXPECT_TRUE(tried);
}

TEST(redraw_sample, draws_nothing_in_the_choosing_stage)
{
    opened_session session;
    session.finish();
    show_menus(session.main, true);
    EXPECT_EQ(session.previews_of([&] { redraw_sample(session.main); }), 0);
}

TEST(redraw_sample, draws_nothing_while_the_preview_is_off)
{
    opened_session session;
    session.finish();
    session.main.optSample.select();
    EXPECT_EQ(session.previews_of([&] { redraw_sample(session.main); }), 0);
    session.main.optSample.select(false);
    EXPECT_EQ(session.previews_of([&] { redraw_sample(session.main); }), 0);
}

TEST(refresh_after_change, marks_the_redraw_and_takes_the_mark_off)
{
    opened_session session;
    session.finish();
    std::string tag = "not loaded";
    session.main.picSample.on_shown_change = [&] { tag = session.main.chkOutline.tag; };
    refresh_after_change(session.main);
    EXPECT_EQ(tag, "skip");
    EXPECT_EQ(session.main.chkOutline.tag, "");
}
