#include "tests/session/opened_session.h"

TEST(frmPhotoCnt, starts_with_its_own_text_each_time)
{
    opened_session session;
    session.all.photo_count.lblCount.set_caption("Checking 3  of  4  photos");
    session.all.photo_count.load();
    EXPECT_EQ(session.all.photo_count.caption(), "Photo Count");
    EXPECT_EQ(session.all.photo_count.lblCount.caption(), "Counting and checking photos...");
    expect_states(session.all.photo_count, "lblAnnounce_");
}

TEST(frmPhotoCnt, a_click_on_its_announcement_closes_it_and_nothing_else_does)
{
    opened_session session;
    session.all.photo_count.load();
    session.all.photo_count.request_close();
    EXPECT_TRUE(session.all.photo_count.loaded());
    session.all.photo_count.lblAnnounce.click();
    EXPECT_FALSE(session.all.photo_count.loaded());
}
