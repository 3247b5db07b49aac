#include "tests/frames/frame_session.h"

#include <algorithm>

namespace {

struct sets_window : frame_session {
    sets_window()
    {
        write_set("club");
        write_set("family");
    }
    void open(bool managing)
    {
        main.frame_manage_mode = managing;
        window.result.reset();
        window.load();
    }
    int position(const std::string & set) const
    {
        return static_cast<int>(std::ranges::find(window.lstFrames.items(), set) -
                                window.lstFrames.items().begin());
    }
    frmCustom & window = all.custom;
};

}  // namespace

TEST(frmCustom, as_manager)
{
    sets_window session;
    session.open(true);
    EXPECT_EQ(session.window.caption(), "M a n a g e   C u s t o m   F r a m e s");
    EXPECT_EQ(session.window.cmdDone.caption(), "Done");
    EXPECT_EQ(session.window.cmdDelete.caption(), "Delete");
    EXPECT_EQ(session.window.width(), 5340);
    expect_states(session.window, "cmdDone+ cmdDelete- cmdEdit^ cmdEdit-");
    session.window.lstFrames.select(0);
    expect_states(session.window, "cmdDone+ cmdDelete+ cmdEdit+");
}

TEST(frmCustom, as_chooser)
{
    sets_window session;
    session.open(false);
    EXPECT_EQ(session.window.caption(), "S e l e c t   F r a m e   S e t");
    EXPECT_EQ(session.window.cmdDone.caption(), "Ok");
    EXPECT_EQ(session.window.cmdDelete.caption(), "Cancel");
    EXPECT_EQ(session.window.width(), 4000);
    expect_states(session.window, "cmdDone- cmdDelete+ cmdEdit_");
    session.window.lstFrames.select(1);
    expect_states(session.window, "cmdDone+");
}

TEST(frmCustom, ok_and_a_double_click_choose_a_set)
{
    sets_window session;
    session.open(false);
    session.window.lstFrames.select_text("family");
    session.window.cmdDone.click();
    EXPECT_EQ(session.window.result, "family");
    EXPECT_FALSE(session.window.loaded());
    session.open(false);
    session.window.lstFrames.double_click(session.position("club"));
    EXPECT_EQ(session.window.result, "club");
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmCustom, cancel_chooses_none)
{
    sets_window session;
    session.open(false);
    session.window.lstFrames.select(0);
    session.window.cmdDelete.click();
    EXPECT_EQ(session.window.result, std::nullopt);
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmCustom, delete_takes_a_set_at_once_and_waits_for_the_next_click)
{
    sets_window session;
    session.open(true);
    session.window.lstFrames.select_text("club");
    session.window.cmdDelete.click();
    EXPECT_FALSE(session.has_set("club"));
    EXPECT_EQ(session.window.lstFrames.items(), std::vector<std::string>{"family"});
    expect_states(session.window, "cmdDelete- cmdEdit-");
    session.window.lstFrames.select(0);
    expect_states(session.window, "cmdDelete+ cmdEdit+");
}

TEST(frmCustom, edit_and_a_double_click_open_the_editor_and_close_the_manager)
{
    for (const bool by_button : {true, false}) {
        sets_window session;
        session.open(true);
        session.desk.on_modal<frmFrames>([](frmFrames &) {});
        session.window.lstFrames.select_text("family");
        if (by_button)
            session.window.cmdEdit.click();
        else
            session.window.lstFrames.double_click(session.position("family"));
        EXPECT_EQ(session.window.edit_frame_name, "family");
        EXPECT_FALSE(session.window.loaded());
    }
}

TEST(frmCustom, done_ends_the_managing)
{
    sets_window session;
    session.open(true);
    session.window.cmdDone.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_FALSE(session.main.frame_manage_mode);
    EXPECT_EQ(session.window.result, std::nullopt);
}

TEST(frmCustom, the_help_keys_open_its_topic)
{
    sets_window session;
    session.open(true);
    session.window.on_key(key::f1);
    EXPECT_TRUE(session.desk.opened_documents.back().ends_with("custom_frames.htm"));
    session.all.frame_name.on_key(key::help);
    EXPECT_TRUE(session.desk.opened_documents.back().ends_with("frame_name.htm"));
    session.all.icon_name.on_key(key::f1);
    EXPECT_TRUE(session.desk.opened_documents.back().ends_with("icons.htm"));
}

// ---- the menu

TEST(frame_menu, edit_frames_tells_when_there_are_none)
{
    frame_session session;
    session.folder.write("data/frames/_named_.not/captions", "\r\n");
    session.main.mnuEditFrame.click();
    EXPECT_EQ(session.desk.next_message(), "You have no custom frames at this time.");
    EXPECT_FALSE(session.has_set("_named_.not"));
}

TEST(frame_menu, edit_frames_opens_the_manager)
{
    sets_window session;
    session.desk.on_modal<frmCustom>([](const frmCustom & window) { expect_states(window, "cmdEdit^"); });
    session.main.mnuEditFrame.click();
    EXPECT_EQ(session.desk.shown_windows, std::vector<std::string>{"frmCustom"});
}

TEST(frame_menu, a_new_frame_begins_with_36_empty_captions_and_no_settings)
{
    frame_session session;
    session.folder.write("data/frames/_named_.not/pframe03.jpg", "of a set that was given up");
    session.desk.on_modal<frmFrames>([&](frmFrames &) {
        EXPECT_EQ(files_in(session.in_frames("_named_.not")), std::vector<std::string>{"captions"});
        std::string empty;
        for (int i = 0; i < 36; ++i)
            empty += "\r\n";
        EXPECT_EQ(read_file(session.in_frames("_named_.not/captions")), empty);
    });
    session.main.mnuNewFrame.click();
    EXPECT_EQ(session.all.custom.edit_frame_name, "_named_.not");
}

TEST(frame_menu, a_frames_folder_that_is_gone_has_no_sets_and_takes_a_new_one)
{
    frame_session session;
    remove_folder(session.folder.at("data/frames"));
    session.main.mnuEditFrame.click();
    EXPECT_EQ(session.desk.next_message(), "You have no custom frames at this time.");
    session.desk.on_modal<frmFrames>([](frmFrames &) {});
    session.main.mnuNewFrame.click();
    EXPECT_TRUE(session.has_set("_named_.not"));
}
