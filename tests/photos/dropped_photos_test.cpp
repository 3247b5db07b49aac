#include "photos/dropped_photos.h"

#include "support/files/file_steps.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

#include <cerrno>
#include <filesystem>

namespace {

struct drop_session : opened_session {
    std::string photo(const std::string & name) const
    {
        std::string path = folder.at(name);
        save_jpeg(plain(8, 6, {}), path);
        return path;
    }
    bool drop(std::vector<std::string> paths, std::vector<std::string> elsewhere = {})
    {
        return use_as_source(main, {.paths = std::move(paths), .elsewhere = std::move(elsewhere)});
    }
};

}  // namespace

TEST(dropped_photos, are_files_and_the_photos_of_folders_in_their_order_each_once)
{
    const drop_session session;
    const std::string loose = session.photo("z.jpeg"), ten = session.photo("sea/10.jpg"),
                      two = session.photo("sea/2.JPG");
    session.folder.write("sea/notes.txt", "");
    const dropped_photos found =
        photos_of_drop({.paths = {loose, session.folder.path() + "/sea/", ten}, .elsewhere = {}});
    EXPECT_EQ(found.photos, (std::vector<std::string>{loose, two, ten}));
    EXPECT_EQ(found.folder, "");
    EXPECT_EQ(found.left_out, std::vector<std::string>());
}

TEST(dropped_photos, are_known_by_what_they_are_and_not_by_their_names)
{
    const drop_session session;
    const std::string text = session.folder.write("a.jpg", "no photo"), hidden = session.photo("photo.bak");
    const dropped_photos found = photos_of_drop({.paths = {text, hidden}, .elsewhere = {}});
    EXPECT_EQ(found.photos, std::vector<std::string>{hidden});
    EXPECT_EQ(found.left_out, std::vector<std::string>{text + ": it can't be read as a JPEG photo"});
}

TEST(dropped_photos, name_what_cannot_be_used_with_the_reason)
{
    const drop_session session;
    session.folder.at("empty/x");
    const std::string empty = session.folder.path() + "/empty";
    const dropped_photos found =
        photos_of_drop({.paths = {"/nowhere/a\nb.jpg", empty}, .elsewhere = {"https://example.org/a.jpg"}});
    EXPECT_TRUE(found.photos.empty());
    EXPECT_EQ(found.left_out,
              (std::vector<std::string>{"/nowhere/a?b.jpg: it isn't there any more",
                                        empty + ": there are no .jpg photos in it",
                                        "https://example.org/a.jpg: it isn't a file of this computer"}));
}

TEST(dropped_photos, of_one_folder_are_that_folder)
{
    drop_session session;
    session.photo("sea/1.jpg");
    const std::string sea = session.folder.path() + "/sea";
    EXPECT_TRUE(session.drop({sea + "/"}));
    EXPECT_EQ(photo_source_kind(session.main), photo_source::folder);
    EXPECT_EQ(session.main.lblPhotos.caption(), "Folder:");
    EXPECT_EQ(session.main.txtPhotos.text(), sea);
    EXPECT_EQ(session.main.txtPhotos.tag, sea);
    EXPECT_EQ(session.main.table.last_photo, 0);
}

TEST(dropped_photos, of_any_other_kind_are_a_selection_in_place_of_the_one_before)
{
    drop_session session;
    const std::string one = session.photo("1.jpg"), two = session.photo("2.jpg");
    const std::string list = session.folder.write("data/piclists/last_photos.pls", "L /old.jpg\r\n");
    session.main.selected_count = 1;
    EXPECT_TRUE(session.drop({two, one}));
    EXPECT_EQ(read_file(list), "L " + two + "\r\nL " + one + "\r\n");
    EXPECT_EQ(photo_source_kind(session.main), photo_source::selection);
    EXPECT_EQ(session.main.selected_count, 2);
    EXPECT_EQ(session.main.lblPhotos.caption(), "Selected:");
    EXPECT_EQ(session.main.txtPhotos.text(), "2 selected photos");
    EXPECT_EQ(session.main.txtPhotos.tag, list);
}

TEST(dropped_photos, that_can_be_used_are_taken_and_the_others_told_in_one_box)
{
    drop_session session;
    const std::string good = session.photo("1.jpg"), bad = session.folder.write("a.txt", "text");
    EXPECT_TRUE(session.drop({bad, good}, {"smb://there/b.jpg"}));
    EXPECT_EQ(session.desk.next_message(),
              "This was left out of what you dropped:\r\n" + bad +
                  ": it can't be read as a JPEG photo\r\nsmb://there/b.jpg: it isn't a file of this computer"
                  "\r\n\r\nDrop JPEG photos of this computer, or folders of them.");
    EXPECT_EQ(session.main.selected_count, 1);
}

TEST(dropped_photos, of_which_none_can_be_used_leave_the_source_as_it_is)
{
    drop_session session;
    session.main.txtPhotos.tag = "/photos";
    EXPECT_FALSE(session.drop({"/nowhere/a.jpg"}));
    EXPECT_TRUE(session.desk.next_message().starts_with("Nothing of what you dropped can be used:\r\n"));
    EXPECT_EQ(session.main.txtPhotos.tag, "/photos");
    EXPECT_EQ(photo_source_kind(session.main), photo_source::none);
}

TEST(dropped_photos, that_are_too_many_are_cut_and_their_faults_fit_in_a_box)
{
    drop_session session;
    const std::string photo = session.photo("sea/0.jpg");
    for (int i = 1; i < 999; ++i)
        std::filesystem::create_hard_link(photo, session.folder.at("sea/" + std::to_string(i) + ".jpg"));
    std::vector<std::string> paths{session.folder.path() + "/sea"};
    for (int i = 0; i < 30; ++i)
        paths.push_back("/nowhere/" + std::to_string(i));
    EXPECT_TRUE(session.drop(paths));
    const std::string told = session.desk.next_message();
    EXPECT_NE(told.find("/nowhere/19:"), std::string::npos);
    EXPECT_EQ(told.find("/nowhere/20:"), std::string::npos);
    EXPECT_NE(told.find("and 10 more"), std::string::npos);
    EXPECT_EQ(session.desk.next_message(), "Maximum number of photos reached");
    EXPECT_EQ(session.main.selected_count, 998);
}

TEST(dropped_photos, keep_the_former_source_where_the_disk_is_full)
{
    drop_session session;
    const std::string photo = session.photo("1.jpg");
    session.main.txtPhotos.tag = "/photos";
    const gated_files full([](file_step, const std::string &) { return ENOSPC; });
    EXPECT_THROW(session.drop({photo}), platform_error);
    EXPECT_EQ(session.main.txtPhotos.tag, "/photos");
    EXPECT_EQ(session.main.selected_count, 0);
}
