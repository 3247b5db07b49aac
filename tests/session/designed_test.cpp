#include "support/MFreeImage.h"
#include "support/colors.h"
#include "tests/designs/opened_browser.h"
#include "tests/photo_lists.h"
#include "tests/pictures.h"

namespace {

// The choosing stage with a catalogue of two designs and one photo.
struct choosing : opened_session {
    choosing()
    {
        folder.write("data/designs.ini",
                     design_section_text(1, "one", {"File=__lettering", "Style=Place", "Design=Block"}) +
                         design_section_text(2, "two", {"File=__lettering", "Style=Place", "Design=Saved"}));
        folder.write("data/designs/__lettering", "300:200:1500:1500:0:0:0:0:\r\n");
        folder.write("data/piclists/mine.pls", list_text({folder.at("photos/a.jpg")}));
        save_jpeg(plain(40, 30, {200, 100, 50}), folder.at("photos/a.jpg"));
        main.load();
    }

    void will_choose_design(int slot = 0)
    {
        desk.on_modal<frmThemes>([slot](frmThemes & browser) {
            browser.optDesign[static_cast<std::size_t>(slot)].select();
            browser.cmdOk.click();
        });
    }

    void will_choose_list()
    {
        desk.on_modal<frmSelectPhotos>([this](frmSelectPhotos & chooser) {
            set_photo_source_kind(main, photo_source::list);
            main.txtPhotos.tag = joined(main.data_folder, "piclists/mine.pls");
            main.photo_choice_cancelled = false;
            chooser.unload();
        });
    }
};

}  // namespace

TEST(mnuDesigned, a_design_and_its_photos_lead_to_the_finishing_stage_and_one_preview)
{
    choosing session;
    EXPECT_TRUE(session.main.mnuDesigned.enabled());
    session.will_choose_design();
    session.will_choose_list();
    session.desk.keeps_messages = true;
    EXPECT_EQ(session.previews_of([&] { session.main.mnuDesigned.click(); }), 1);
    EXPECT_TRUE(session.desk.messages.empty());
    EXPECT_EQ(session.desk.shown_windows,
              (std::vector<std::string>{"frmThemes", "frmSelectPhotos", "frmPhotoCnt"}));
    EXPECT_EQ(session.main.caption(), "F i n i s h i n g   t o u c h e s");
    EXPECT_EQ(session.main.lblDesign.caption(), "one");
    EXPECT_EQ(session.main.table.landscape_count, 1);
    expect_states(session.main, "mnuFile_ frmOutput^ frmOrnaments^ optPreview1 picSample^");
    EXPECT_TRUE(session.main.collage.random_design);
    EXPECT_FALSE(session.main.catalogue.catalogue_at_end);
    EXPECT_FALSE(session.main.updating_controls);
}

TEST(mnuDesigned, clears_what_other_collages_left)
{
    choosing session;
    frmMain & main = session.main;
    main.collage.quick_active = true;
    main.collage.matrix_both = main.collage.matrix_rotate = main.collage.matrix_resize = true;
    main.collage.design_rotated = main.collage.design_flipped = main.collage.design_mirrored = true;
    main.cmbBlanks.set_text("8");
    main.frmBorder.enable(false);
    session.desk.on_modal<frmThemes>([&](frmThemes & browser) {
        expect_states(main, "picSplash_ lblBlanks_ cmbBlanks_ frmBorder-");
        EXPECT_EQ(main.cmbBlanks.text(), "0");
        EXPECT_EQ(main.back_color(), about_background);
        EXPECT_FALSE(main.collage.quick_active);
        EXPECT_FALSE(main.collage.matrix_both || main.collage.matrix_rotate || main.collage.matrix_resize);
        EXPECT_FALSE(main.collage.design_rotated || main.collage.design_flipped ||
                     main.collage.design_mirrored);
        browser.cmdCancel.click();
    });
    main.mnuDesigned.click();
    expect_states(main, "frmBorder+");
}

TEST(mnuDesigned, a_cancel_of_the_browser_asks_for_no_photos)
{
    choosing session;
    session.desk.on_modal<frmThemes>([](frmThemes & browser) { browser.request_close(); });
    session.main.mnuDesigned.click();
    EXPECT_EQ(session.desk.shown_windows, std::vector<std::string>{"frmThemes"});
    expect_states(session.main, "mnuFile^ frmOutput_ optPreview0");
    EXPECT_FALSE(session.main.catalogue.catalogue_at_end);
    EXPECT_EQ(session.previews(), 0);
}

TEST(mnuDesigned, a_cancel_of_the_photo_chooser_stays_in_the_choosing_stage)
{
    choosing session;
    session.will_choose_design();
    session.desk.on_modal<frmSelectPhotos>([](frmSelectPhotos & chooser) { chooser.cmdCancel.click(); });
    session.main.mnuDesigned.click();
    expect_states(session.main, "mnuFile^ frmOutput_ picSample_ picSplash^");
    EXPECT_EQ(session.previews(), 0);
    EXPECT_FALSE(session.main.updating_controls);
}

TEST(mnuDesigned, a_choice_that_was_cancelled_before_does_not_count)
{
    choosing session;
    session.desk.keeps_messages = true;
    session.will_choose_design();
    session.desk.on_modal<frmSelectPhotos>([](frmSelectPhotos & chooser) { chooser.cmdCancel.click(); });
    session.main.mnuDesigned.click();
    session.will_choose_design();
    session.will_choose_list();
    session.main.mnuDesigned.click();
    expect_states(session.main, "mnuFile_ frmOutput^");
}

TEST(mnuDesigned, a_saved_design_has_no_ornaments)
{
    choosing session;
    session.desk.keeps_messages = true;
    session.will_choose_design(8);
    session.will_choose_list();
    session.main.mnuDesigned.click();
    expect_states(session.main, "frmOrnaments_ frmOutput^");
}

TEST(mnuDesigned, photos_of_a_folder_are_taken_as_its_chooser_left_them)
{
    choosing session;
    session.desk.keeps_messages = true;
    session.will_choose_design();
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & chooser) {
        set_photo_source_kind(session.main, photo_source::folder);
        session.main.txtPhotos.tag = session.folder.path();
        session.main.table[0] = session.folder.at("photos/a.jpg");
        session.main.table.last_photo = 0;
        session.main.photo_choice_cancelled = false;
        chooser.unload();
    });
    session.main.mnuDesigned.click();
    EXPECT_EQ(session.main.table.last_photo, 0);
    EXPECT_EQ(session.main.table.landscape_count, 1);
}
