#include "photos/lists/photo_list.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

namespace {

struct photo_menus : opened_session {
    photo_menus() { folder.at("data/piclists/x"); }

    void will_name(const std::string & name)
    {
        desk.on_modal<frmPictureName>([name](frmPictureName & window) {
            window.txtName.set_text(name);
            window.cmdOk.click();
        });
    }
    void will_name_nothing()
    {
        desk.on_modal<frmPictureName>([](frmPictureName & window) { window.cmdCancel.click(); });
    }
    void have_selected(const std::vector<std::string> & photos)
    {
        append_to_list(main, photos);
        set_photo_source_kind(main, photo_source::selection);
    }
    std::string list(const std::string & name) { return folder.at("data/piclists/" + name + ".pls"); }
};

}  // namespace

TEST(mnuNewList, gathers_photos_in_a_list_of_its_own)
{
    photo_menus session;
    session.main.txtPhotos.tag = "/p/summer";
    set_photo_source_kind(session.main, photo_source::folder);
    session.folder.write("data/piclists/last_photos.pls", "L /p/old.jpg\r\n");
    session.main.selected_count = 1;
    session.will_name("Sea");
    session.desk.on_modal<frmPhotoList>([&](frmPhotoList & window) {
        EXPECT_EQ(session.main.selected_count, 0);
        session.desk.will_choose_files({"/p/a.jpg"});
        window.cmdPhotos.click();
        window.cmdDone.click();
    });
    session.main.mnuNewList.click();
    EXPECT_EQ(read_file(session.list("Sea")), "L /p/a.jpg\r\n");
    EXPECT_FALSE(file_exists(session.list("last_photos")));
    EXPECT_EQ(session.main.selected_count, 0);
    EXPECT_EQ(session.main.working_list_path, session.list("Sea"));
    EXPECT_EQ(session.main.txtPhotos.tag, "/p/summer") << "the collage keeps its photos";
}

TEST(mnuNewList, a_list_of_that_name_starts_afresh)
{
    photo_menus session;
    session.folder.write("data/piclists/Sea.pls", "L /p/old.jpg\r\n");
    session.desk.will_answer(answer::yes);
    session.will_name("Sea");
    session.desk.on_modal<frmPhotoList>([&](frmPhotoList & window) {
        session.desk.will_choose_files({"/p/a.jpg"});
        window.cmdPhotos.click();
        window.cmdDone.click();
    });
    session.main.mnuNewList.click();
    EXPECT_EQ(read_file(session.list("Sea")), "L /p/a.jpg\r\n");
}

TEST(mnuNewList, without_a_name_nothing_changes)
{
    photo_menus session;
    session.have_selected({"/p/a.jpg"});
    session.will_name_nothing();
    session.main.mnuNewList.click();
    EXPECT_EQ(session.main.selected_count, 1);
    EXPECT_EQ(session.main.cmdPhotos.tag, "1");
    EXPECT_TRUE(file_exists(session.list("last_photos")));
}

TEST(mnuSaveLast, without_a_working_list_there_is_nothing_to_save)
{
    photo_menus session;
    session.main.mnuSaveLast.click();
    EXPECT_EQ(session.desk.next_message(), "No picture list to be saved");
}

TEST(mnuSaveLast, saves_the_list_with_its_orientations_and_ends_the_selection)
{
    photo_menus session;
    const std::string high = session.folder.at("high.jpg"), broken = session.folder.write("broken.jpg", "x");
    save_jpeg(plain(30, 40, {}), high);
    session.have_selected({high, broken});
    session.will_name("Sea");
    session.main.mnuSaveLast.click();
    EXPECT_EQ(read_file(session.list("Sea")), "P " + high + "\r\nL " + broken + "\r\n");
    EXPECT_FALSE(file_exists(session.list("last_photos")));
    EXPECT_EQ(session.main.selected_count, 0);
    EXPECT_EQ(photo_source_kind(session.main), photo_source::none);
    EXPECT_EQ(session.main.txtPhotos.tag, session.list("Sea"));
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(mnuSaveLast, without_a_name_the_selection_goes_on)
{
    photo_menus session;
    session.have_selected({"/p/a.jpg"});
    session.will_name_nothing();
    session.main.mnuSaveLast.click();
    EXPECT_EQ(session.main.selected_count, 1);
    EXPECT_EQ(session.main.cmdPhotos.tag, "1");
    EXPECT_TRUE(file_exists(session.list("last_photos")));
}

TEST(mnuSaveLast, the_old_list_survives_a_target_that_can_t_be_written)
{
    photo_menus session;
    session.folder.write("data/piclists/Sea.pls", "L /p/old.jpg\r\n");
    session.have_selected(std::vector<std::string>(500, "/p/with/a/longer/path.jpg"));
    session.desk.will_answer(answer::yes);
    session.will_name("Sea");
    {
        const full_disk full(1000);
        EXPECT_THROW(session.main.mnuSaveLast.click(), platform_error);
    }
    EXPECT_EQ(read_file(session.list("Sea")), "L /p/old.jpg\r\n");
    EXPECT_TRUE(file_exists(session.list("last_photos")));
    EXPECT_EQ(session.main.selected_count, 500);
    EXPECT_EQ(session.desk.busy_depth, 0);
}
