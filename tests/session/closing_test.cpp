#include "tests/session/opened_session.h"

namespace {

void load_all(opened_session & session)
{
    session.folder.write("data/designs.ini", "");
    session.all.pictures.edit_list_path = session.folder.write("data/piclists/Sea.pls", "");
    session.folder.write("data/icons/icons", "");
    session.folder.write("data/frames/club/captions", "");
    session.all.custom.edit_frame_name = "club";
    session.all.frames.cmbPhotos.set_text("None");
    session.main.load();
    for (form * each : session.all.others())
        each->load();
}

bool any_other_loaded(opened_session & session)
{
    for (form * each : session.all.others())
        if (each->loaded())
            return true;
    return false;
}

}  // namespace

TEST(closing, in_the_choosing_stage_takes_every_window_down)
{
    opened_session session;
    load_all(session);
    session.main.request_close();
    EXPECT_FALSE(session.main.loaded());
    EXPECT_FALSE(any_other_loaded(session));
}

TEST(closing, in_the_finishing_stage_only_backs_out)
{
    opened_session session;
    session.main.load();
    session.finish();
    session.main.request_close();
    EXPECT_TRUE(session.main.loaded());
    expect_states(session.main, "mnuFile^ mnuHelp^ frmOutput_ frmButtons_ optPreview0");
    EXPECT_TRUE(session.main.menus_shown);
    session.main.request_close();
    EXPECT_FALSE(session.main.loaded());
}

TEST(closing, during_a_run_asks_the_run_to_stop)
{
    opened_session session;
    session.main.load();
    session.finish();
    session.main.run.run_active = true;
    session.main.request_close();
    EXPECT_TRUE(session.main.loaded());
    EXPECT_TRUE(session.main.run.cancel_requested);
    EXPECT_FALSE(session.main.menus_shown);
}

TEST(mnuQuit, takes_every_window_down)
{
    opened_session session;
    load_all(session);
    session.main.mnuQuit.click();
    EXPECT_TRUE(session.main.quit_requested);
    EXPECT_FALSE(session.main.loaded());
    EXPECT_FALSE(any_other_loaded(session));
}

TEST(trace, tells_the_last_step_first)
{
    opened_session session;
    session.main.trace = "BBB  ";
    session.main.mnuQuit.click();
    EXPECT_EQ(session.main.trace, " ZZ  QUIT BBB  ");
    session.main.cmdCancel.click();
    EXPECT_TRUE(session.main.trace.starts_with(" CC "));
}
