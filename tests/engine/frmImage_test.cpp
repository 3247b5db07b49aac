#include "tests/session/opened_session.h"

TEST(frmImage, shows_the_picture_and_closes)
{
    opened_session session;
    session.main.image_to_show = "/tmp/finished.jpg";
    session.desk.on_modal<frmImage>([](frmImage & window) {
        EXPECT_EQ(window.lblImageName.caption(), "/tmp/finished.jpg");
        EXPECT_EQ(window.picDisplay.file(), "/tmp/finished.jpg");
        expect_states(window, "lblImageName_ cmdSave- cmdPrint- cmdView- cmdClose+");
        window.cmdClose.click();
        EXPECT_FALSE(window.loaded());
    });
    session.desk.show_modal(session.all.image);
}

TEST(frmImage, loads_the_picture_anew_each_time)
{
    opened_session session;
    session.main.image_to_show = "/tmp/finished.jpg";
    session.all.image.load();
    session.all.image.unload();
    session.all.image.load();
    EXPECT_EQ(session.all.image.picDisplay.load_count(), 2);
}
