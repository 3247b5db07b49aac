#include "session/start_designed.h"

#include "support/MFreeImage.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

namespace {

// A session in which a design and one photo have been chosen.
struct chosen_design : opened_session {
    chosen_design()
    {
        desk.keeps_messages = true;
        const std::string photo = folder.at("photos/a.jpg");
        save_jpeg(plain(40, 30, {200, 100, 50}), photo);
        main.table[0] = photo;
        main.table.last_photo = 0;
        set_photo_source_kind(main, photo_source::folder);
        main.design_record.file = "__lettering";
        main.design_record.style = "Place";
        folder.write("data/designs/__lettering", "300:200:1500:1500:0:0:0:0:\r\n");
    }
};

}  // namespace

TEST(start_designed, counts_the_photos_in_their_window_and_draws_one_preview)
{
    chosen_design session;
    start_designed(session.main);
    EXPECT_EQ(session.desk.shown_windows.front(), "frmPhotoCnt");
    EXPECT_EQ(session.desk.hidden_windows.front(), "frmPhotoCnt");
    EXPECT_EQ(session.desk.busy_depth, 0);
    EXPECT_EQ(session.main.table.landscape_count, 1);
    EXPECT_EQ(session.previews(), 1);
    EXPECT_TRUE(session.desk.messages.empty());
    EXPECT_TRUE(load_picture(picture_format::jpeg, session.main.picSample.file()));
    expect_states(session.main, "optPreview1 picSample^ mnuFile_ frmOutput^");
    EXPECT_FALSE(session.main.updating_controls);
}

TEST(start_designed, settles_the_window)
{
    chosen_design session;
    frmMain & main = session.main;
    session.folder.write("data/designs/__matrix", "1");
    main.chkRounded.tick(true);
    main.chkMatch.enable(false);
    main.frmBorder.enable(false);
    main.optSample.show(false);
    main.optBlock.on_click = nullptr;
    main.optBlock.select();
    main.collage.quick_active = true;
    main.lblOutput.set_caption("Using 04 selected photos...");
    start_designed(main);
    expect_states(main, "chkRounded0 cmdMore_ optBlock0 chkMatch+ frmBorder+ optSample^ frmStyle_");
    EXPECT_TRUE(main.collage.random_design);
    EXPECT_FALSE(main.collage.quick_active);
    EXPECT_EQ(main.lblOutput.caption(), "");
    EXPECT_FALSE(file_exists(joined(main.data_folder, "designs/__matrix")));
}

TEST(start_designed, shapes_and_saved_designs_have_no_ornaments)
{
    struct row {
        const char *quick_shape, *design;
        bool ornaments;
    };
    for (const row & each : {row{"Yes", "Theme", false}, row{"", "Saved", false}, row{"", "Block", true}}) {
        chosen_design session;
        session.main.design_record.quick_shape = each.quick_shape;
        session.main.design_record.design = each.design;
        start_designed(session.main);
        EXPECT_EQ(session.main.frmOrnaments.visible(), each.ornaments) << each.design;
    }
}

TEST(start_designed, without_photos_stays_in_the_choosing_stage)
{
    for (const bool cancelled : {true, false}) {
        chosen_design session;
        session.main.photo_choice_cancelled = cancelled;
        if (!cancelled)
            set_photo_source_kind(session.main, photo_source::none);
        start_designed(session.main);
        expect_states(session.main, "mnuFile^ optPreview1");
        EXPECT_TRUE(session.desk.shown_windows.empty());
        EXPECT_EQ(session.previews(), 0);
        EXPECT_FALSE(session.main.updating_controls);
    }
}

TEST(start_designed, draws_even_when_the_preview_was_left_on)
{
    chosen_design session;
    start_designed(session.main);
    EXPECT_EQ(session.previews_of([&] { start_designed(session.main); }), 1);
}
