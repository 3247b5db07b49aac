#include "tests/session/opened_session.h"

TEST(frmPhotoCnt, starts_with_its_own_text_each_time)
{
    opened_session session;
    session.all.photo_count.lblCount.set_caption("Checking 3  of  4  photos");
    session.all.photo_count.load();
    EXPECT_EQ(session.all.photo_count.lblCount.caption(), "Counting and checking photos...");
    expect_states(session.all.photo_count, "lblAnnounce_");
}
