#include "photos/lists/photo_list.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/session/opened_session.h"

#include <algorithm>
#include <filesystem>

namespace {

struct selection : opened_session {
    selection()
    {
        folder.at("data/piclists/x");
        main.working_list_path = last_photos_path(main);
    }
    void have_selected(int count)
    {
        main.selected_count = narrow(count);
        window.load();
    }
    std::string list() const { return read_file(main.working_list_path); }
    frmPhotoList & window = all.photo_list;
};

}  // namespace

TEST(frmPhotoList, shows_how_many_photos_are_selected)
{
    selection session;
    session.have_selected(5);
    EXPECT_EQ(session.window.lblCount.caption(), "Number of photos selected:   5");
    expect_states(session.window, "txtCounting_");
}

TEST(frmPhotoList, only_1_to_60_photos_can_be_edited)
{
    for (const auto & [count, states] : {std::pair{0, "cmdEdit_ txtEdit_"},
                                         {1, "cmdEdit^ txtEdit^"},
                                         {60, "cmdEdit^ txtEdit^"},
                                         {61, "cmdEdit_ txtEdit_"}}) {
        selection session;
        session.have_selected(count);
        expect_states(session.window, states);
    }
}

TEST(frmPhotoList, single_photos_are_added_and_counted)
{
    selection session;
    session.have_selected(0);
    session.desk.will_choose_files({"/p/a.jpg", "/p/b.gif"});
    session.window.cmdPhotos.click();
    EXPECT_EQ(session.window.lblCount.caption(), "Number of photos selected:   2");
    EXPECT_EQ(session.list(), "L /p/a.jpg\r\nL /p/b.gif\r\n");
    EXPECT_EQ(session.main.cmdPhotos.tag, "2");
}

TEST(frmPhotoList, a_whole_folder_of_single_photos_is_taken)
{
    selection session;
    session.have_selected(0);
    session.desk.will_choose_files(std::vector<std::string>(1200, "/p/a.jpg"));
    session.window.cmdPhotos.click();
    EXPECT_EQ(session.main.selected_count, 1200);
}

TEST(frmPhotoList, a_folder_adds_jpg_in_either_case_and_nothing_else)
{
    selection session;
    session.have_selected(0);
    for (const char * name : {"album/A.JPG", "album/b.Jpg", "album/c.jpeg", "album/in/d.jpg"})
        session.folder.write(name, "");
    session.desk.will_choose_folder(session.folder.at("album"));
    session.window.cmdFolder.click();
    EXPECT_EQ(session.main.selected_count, 2);
    EXPECT_EQ(session.window.lblCount.caption(), "Number of photos selected:   2");
    EXPECT_NE(session.list().find("L " + session.folder.at("album/A.JPG") + "\r\n"), std::string::npos);
    EXPECT_NE(session.list().find("L " + session.folder.at("album/b.Jpg") + "\r\n"), std::string::npos);
}

TEST(frmPhotoList, a_folder_of_1200_photos_stops_at_999)
{
    selection session;
    session.have_selected(0);
    for (int i = 0; i < 1200; ++i)
        session.folder.write("many/" + std::to_string(i) + ".jpg", "");
    session.desk.will_choose_folder(session.folder.at("many"));
    session.window.cmdFolder.click();
    EXPECT_EQ(session.desk.next_message(), "Maximum number of photos reached");
    EXPECT_EQ(session.main.selected_count, 999);
    std::string expected;
    for (int i = 0; i < 999; ++i)
        expected += "L " + session.folder.at("many/" + std::to_string(i) + ".jpg") + "\r\n";
    EXPECT_EQ(session.list(), expected);
    expect_states(session.window, "cmdEdit_");
}

TEST(frmPhotoList, a_folder_without_photos_is_told_and_makes_no_list)
{
    selection session;
    session.have_selected(0);
    std::filesystem::create_directory(session.folder.at("empty"));
    session.desk.will_choose_folder(session.folder.at("empty"));
    session.window.cmdFolder.click();
    EXPECT_EQ(session.desk.next_message(), "There are no photos in that folder.");
    EXPECT_FALSE(file_exists(session.main.working_list_path));
}

TEST(frmPhotoList, a_folder_that_can_t_be_read_is_named_and_leaves_the_list)
{
    selection session;
    session.folder.write("data/piclists/last_photos.pls", "L /p/a.jpg\r\n");
    session.have_selected(1);
    session.desk.will_choose_folder(session.folder.at("gone"));
    try {
        session.window.cmdFolder.click();
        ADD_FAILURE() << "no error";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.path, session.folder.at("gone"));
    }
    EXPECT_EQ(session.main.selected_count, 1);
    EXPECT_EQ(session.list(), "L /p/a.jpg\r\n");
}

TEST(frmPhotoList, a_cancelled_or_empty_folder_changes_nothing)
{
    selection session;
    session.have_selected(2);
    for (const auto & given : {std::optional<std::string>(), std::optional<std::string>("")}) {
        session.desk.will_choose_folder(given);
        session.window.cmdFolder.click();
    }
    EXPECT_EQ(session.main.selected_count, 2);
}

TEST(frmPhotoList, a_disk_that_is_full_keeps_the_list_and_the_count)
{
    selection session;
    const std::string before = "L /p/a.jpg\r\n";
    session.folder.write("data/piclists/last_photos.pls", before);
    session.have_selected(1);
    session.desk.will_choose_files(std::vector<std::string>(500, "/p/with/a/longer/path.jpg"));
    {
        const full_disk full(1000);
        EXPECT_THROW(session.window.cmdPhotos.click(), platform_error);
    }
    EXPECT_EQ(session.list(), before);
    EXPECT_EQ(session.main.selected_count, 1);
}

TEST(frmPhotoList, clear_deletes_the_list_without_a_question)
{
    selection session;
    session.folder.write("data/piclists/last_photos.pls", "L /p/a.jpg\r\n");
    session.have_selected(1);
    session.window.cmdClear.click();
    EXPECT_FALSE(file_exists(session.main.working_list_path));
    EXPECT_EQ(session.window.lblCount.caption(), "Number of photos selected:   0");
    session.window.cmdClear.click();  // a list that isn't there is no error
}

TEST(frmPhotoList, done_makes_the_list_the_one_to_read)
{
    selection session;
    session.have_selected(7);
    session.window.cmdDone.click();
    EXPECT_EQ(session.main.txtPhotos.tag, session.main.working_list_path);
    EXPECT_EQ(session.main.cmdPhotos.tag, "7");
    EXPECT_EQ(session.window.result, 7);
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmPhotoList, done_without_photos_closes_and_touches_nothing)
{
    selection session;
    session.main.txtPhotos.tag = "before";
    session.have_selected(0);
    session.window.cmdDone.click();
    EXPECT_EQ(session.main.txtPhotos.tag, "before");
    EXPECT_EQ(session.window.result, 0);
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmPhotoList, cancel_and_the_close_box_tell_the_choice_so)
{
    for (const bool by_box : {false, true}) {
        selection session;
        session.have_selected(2);
        if (by_box)
            session.window.request_close();
        else
            session.window.cmdCancel.click();
        EXPECT_EQ(session.window.result, std::nullopt);
        EXPECT_FALSE(session.window.loaded());
    }
}

TEST(frmPhotoList, the_help_key_and_button_open_its_page)
{
    selection session;
    session.window.cmdHelp.click();
    session.window.on_key(key::help);
    ASSERT_EQ(session.desk.opened_documents.size(), 2U);
    for (const std::string & page : session.desk.opened_documents)
        EXPECT_TRUE(page.ends_with("/help/photo_list.htm"));
}
