#include "support/colors.h"
#include "tests/session/opened_session.h"

TEST(frmAbout, says_what_the_program_is_in_lines)
{
    opened_session session;
    session.desk.on_modal<frmAbout>([&](frmAbout & window) {
        EXPECT_EQ(window.caption(), "A b o u t   F l u r n s");
        EXPECT_EQ(window.cmdOK.caption(), "OK");
        EXPECT_EQ(window.back_color(), about_background);
        EXPECT_EQ(window.PicIcon.file(), joined(session.main.install_folder, "images/icon.png"));
        const std::string & text = window.txtAbout.text();
        EXPECT_TRUE(text.starts_with("Tessaloom ")) << text;
        EXPECT_NE(text.find("\r\n\r\nCollage Software for your digital photos.  Tessaloom will automagically "
                            "create your design or you can select from dozens of unique templates.\r\n\r\n"),
                  std::string::npos)
            << text;
        window.cmdOK.click();
        EXPECT_FALSE(window.loaded());
    });
    session.main.mnuHelpAbout.click();
}
