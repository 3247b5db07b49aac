#include "tests/frames/frame_session.h"

namespace {

struct naming_a_set : frame_session {
    naming_a_set()
    {
        write_set("club");
        window.load();
    }
    /// What the window gives after the user typed a name, "stays" while the window is open.
    std::string given(const std::string & name)
    {
        window.txtName.set_text(name);
        window.cmdOk.click();
        return window.loaded() ? "stays" : window.result.value_or("none");
    }
    frmFrameName & window = all.frame_name;
};

}  // namespace

TEST(frmFrameName, has_its_texts)
{
    const naming_a_set session;
    EXPECT_EQ(session.window.caption(), "F r a m e   S e t   N a m e");
    EXPECT_EQ(session.window.lblName.caption(), "Provide a name for your new custom frame set: ");
}

TEST(frmFrameName, gives_the_name)
{
    naming_a_set session;
    EXPECT_EQ(session.given("M\xC3\xBCllers \"best\" 50%: a [b] #1 @home"),
              "M\xC3\xBCllers \"best\" 50%: a [b] #1 @home");
}

TEST(frmFrameName, blanks_around_the_name_are_cut)
{
    EXPECT_EQ(naming_a_set().given("  new  set "), "new  set");
    naming_a_set session;
    EXPECT_EQ(session.given(" club"), "stays");
    EXPECT_EQ(session.desk.next_message(), "You already have a custom frame named:  club");
    EXPECT_EQ(session.given("   "), "stays");
    EXPECT_EQ(session.desk.next_message(), "You already have a custom frame named:  ");
}

TEST(frmFrameName, a_name_that_is_there_is_told_and_stays)
{
    naming_a_set session;
    for (const char * name : {"club", "", ".", ".."}) {
        EXPECT_EQ(session.given(name), "stays");
        EXPECT_EQ(session.desk.next_message(),
                  "You already have a custom frame named:  " + std::string(name));
        EXPECT_EQ(session.window.result, std::nullopt);
    }
}

TEST(frmFrameName, a_name_that_leads_elsewhere_is_refused)
{
    naming_a_set session;
    for (const char * name : {"a/b", "../outside", "/tmp/x", "a\\b", "\\"}) {
        EXPECT_EQ(session.given(name), "stays");
        EXPECT_EQ(session.desk.next_message(),
                  "The name of a frame set can't have a \"/\" or a \"\\\" in it.");
    }
    EXPECT_EQ(session.given("a\nb"), "stays");
    EXPECT_EQ(session.desk.next_message(), "The name of a frame set can't have a line break or a tab in it.");
    EXPECT_EQ(session.given(std::string(300, 'x')), "stays");
    EXPECT_EQ(session.desk.next_message(), "That name is too long for a frame set.");
    session.folder.write("data/frames/notes", "");
    EXPECT_EQ(session.given("notes"), "stays");
    EXPECT_EQ(session.desk.next_message(), "There is a file of that name where your custom frames are kept.");
    EXPECT_EQ(session.window.result, std::nullopt);
}

TEST(frmFrameName, cancel_gives_none)
{
    naming_a_set session;
    session.window.txtName.set_text("new");
    session.window.cmdCancel.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.window.result, std::nullopt);
}
