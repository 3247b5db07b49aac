#include "tests/session/opened_session.h"

namespace {

struct naming : opened_session {
    naming()
    {
        folder.at("data/piclists/x");
        main.cmdPhotos.tag = "3";
        main.txtPhotos.tag = "before";
        window.load();
    }
    std::string given(const std::string & name)
    {
        window.txtName.set_text(name);
        window.cmdOk.click();
        return window.loaded() ? "stays" : main.cmdPhotos.tag;
    }
    frmPictureName & window = all.picture_name;
};

}  // namespace

TEST(frmPictureName, ok_is_enabled_only_with_a_name)
{
    naming session;
    expect_states(session.window, "cmdOk-");
    session.window.txtName.set_text("x");
    expect_states(session.window, "cmdOk+");
    session.window.txtName.set_text("");
    expect_states(session.window, "cmdOk-");
}

TEST(frmPictureName, starts_empty_each_time)
{
    naming session;
    session.window.txtName.set_text("x");
    session.window.unload();
    session.window.load();
    EXPECT_EQ(session.window.txtName.text(), "");
    expect_states(session.window, "cmdOk-");
}

TEST(frmPictureName, gives_the_path_and_keeps_it_in_both_tags)
{
    naming session;
    const std::string path =
        session.folder.at("data/piclists") + "/  M\xC3\xBCller's \"best\" \xF0\x9F\x8C\x8A.pls";
    EXPECT_EQ(session.given("  M\xC3\xBCller's \"best\" \xF0\x9F\x8C\x8A"), path);
    EXPECT_EQ(session.main.txtPhotos.tag, path);
    EXPECT_EQ(session.window.result, path);
}

TEST(frmPictureName, a_name_that_can_t_be_a_file_is_told_and_stays)
{
    naming session;
    EXPECT_EQ(session.given("../outside"), "stays");
    EXPECT_EQ(session.desk.next_message(), "The name of a photo list can't have a \"/\" or a \"\\\" in it.");
    EXPECT_EQ(session.window.txtName.text(), "../outside");
    EXPECT_EQ(session.main.cmdPhotos.tag, "3");
    EXPECT_EQ(session.main.txtPhotos.tag, "before");
}

TEST(frmPictureName, no_to_overwriting_stays_and_yes_and_even_cancel_go_on)
{
    for (const auto & [given, stays] :
         {std::pair{answer::no, true}, {answer::yes, false}, {answer::cancel, false}}) {
        naming session;
        const std::string path = session.folder.write("data/piclists/old.pls", "L /p/a.jpg\r\n");
        session.desk.will_answer(given);
        EXPECT_EQ(session.given("old"), stays ? "stays" : path);
        EXPECT_EQ(session.desk.questions.front().text,
                  "Do you want to overwrite the existing \r\n" + path + " file?");
        EXPECT_EQ(session.desk.questions.front().offered, answers::yes_no_cancel);
        EXPECT_EQ(session.desk.questions.front().on_enter, answer::no);
    }
}

TEST(frmPictureName, cancel_and_the_close_box_leave_both_tags)
{
    naming session;
    session.window.txtName.set_text("x");
    session.window.cmdCancel.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.window.result, std::nullopt);
    EXPECT_EQ(session.main.cmdPhotos.tag, "3");
    EXPECT_EQ(session.main.txtPhotos.tag, "before");
    session.window.load();
    session.window.request_close();
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmPictureName, the_help_key_opens_its_page)
{
    naming session;
    session.window.on_key(key::f1);
    EXPECT_TRUE(session.desk.opened_documents.front().ends_with("/help/photo_name.htm"));
}
