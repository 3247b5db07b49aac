#include "designers/start_designer.h"

#include "engine/layout/worn_ornaments.h"
#include "support/colors.h"
#include "support/platform_error.h"
#include "tests/designers/designer_session.h"
#include "tests/pictures.h"

namespace {

using names = std::vector<std::string>;

struct flow : designer_session {
    void will_design_matrix()
    {
        desk.on_modal<frmMatrix>([](frmMatrix & window) { window.cmdOk.click(); });
    }
    void will_design_lettering()
    {
        desk.on_modal<frmLettering>([](frmLettering & window) {
            window.txtLettering.set_text("Hi");
            window.cmdOk.click();
        });
    }
    void will_design_puzzle()
    {
        desk.on_modal<frmPuzzle>([](frmPuzzle & window) { window.cmdOk.click(); });
    }
    void will_design(designer chosen)
    {
        if (chosen == designer::matrix)
            will_design_matrix();
        else if (chosen == designer::lettering)
            will_design_lettering();
        else
            will_design_puzzle();
    }
    menu_entry & entry(designer chosen) const
    {
        if (chosen == designer::matrix)
            return main.mnuMatrix;
        return chosen == designer::lettering ? main.mnuLettering : main.mnuPuzzle;
    }
    void run(designer chosen)
    {
        if (chosen != designer::lettering)  // its two letters take the two photos
            desk.will_answer(answer::no);
        will_design(chosen);
        will_choose_list(list);
        entry(chosen).click();
    }
};

constexpr designer all_designers[] = {designer::matrix, designer::lettering, designer::puzzle};

}  // namespace

TEST(designer_menus, are_offered)
{
    const flow session;
    expect_states(session.main, "mnuMatrix+ mnuLettering+ mnuPuzzle+");
}

TEST(designer_menus, a_cancel_of_the_design_stays_in_the_choosing_stage)
{
    struct row {
        designer chosen;
        const char * window;
    };
    for (const row & each : {row{designer::matrix, "frmMatrix"}, row{designer::lettering, "frmLettering"},
                             row{designer::puzzle, "frmPuzzle"}}) {
        flow session;
        session.main.lblDesign.tag = "Match";
        if (each.chosen == designer::matrix)
            session.desk.on_modal<frmMatrix>([](frmMatrix & window) { window.cmdCancel.click(); });
        else if (each.chosen == designer::lettering)
            session.desk.on_modal<frmLettering>([](frmLettering & window) { window.request_close(); });
        else
            session.desk.on_modal<frmPuzzle>([](frmPuzzle & window) { window.request_close(); });
        session.entry(each.chosen).click();
        EXPECT_EQ(session.desk.shown_windows, names{each.window});
        expect_states(session.main, "mnuFile^ frmOutput_ picSplash^");
        EXPECT_EQ(session.previews(), 0);
        EXPECT_FALSE(session.main.collage.matrix_session);
    }
}

TEST(designer_menus, a_cancel_of_the_photos_stays_in_the_choosing_stage)
{
    for (const designer chosen : all_designers) {
        flow session;
        session.will_design(chosen);
        session.will_cancel_photos();
        session.entry(chosen).click();
        expect_states(session.main, "mnuFile^ frmOutput_ chkMatch+ chkMatch^");
        EXPECT_EQ(session.previews(), 0);
        EXPECT_FALSE(session.main.collage.matrix_session);
        EXPECT_FALSE(session.main.catalogue.catalogue_at_end);
    }
}

TEST(mnuMatrix, leads_to_the_finishing_stage_and_one_preview)
{
    flow session;
    session.desk.will_answer(answer::no);
    session.will_design_matrix();
    session.will_choose_list(session.list);
    EXPECT_EQ(session.previews_of([&] { session.main.mnuMatrix.click(); }), 1);
    EXPECT_EQ(session.desk.shown_windows, (names{"frmMatrix", "frmSelectPhotos", "frmPhotoCnt"}));
    const frmMain & main = session.main;
    EXPECT_EQ(main.design_record.name, "Matrix grid");
    EXPECT_EQ(main.caption(), "F i n i s h i n g   t o u c h e s");
    EXPECT_TRUE(main.collage.matrix_session);
    EXPECT_FALSE(main.collage.random_design);
    EXPECT_EQ(main.back_color(), about_background);
    EXPECT_EQ(main.lblOutput.caption(), "");
    expect_states(main,
                  "mnuFile_ frmOutput^ frmOrnaments^ chkMatch^ chkMatch1 frmBorder- optNone1 optNone- "
                  "frmSpace_ frmStyle_ chkOutline_ cmdMore_ lblBlanks_ cmbBlanks_ optPreview1 picSample^");
    EXPECT_FALSE(main.updating_controls);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(mnuMatrix, of_frames_has_no_ornaments_and_cannot_be_saved)
{
    flow session;
    session.make_frame_set("club", 2);
    save_jpeg(plain(35, 52, {1, 2, 3}), session.folder.at("data/frames/club/pframe01.jpg"));
    save_jpeg(plain(35, 52, {1, 2, 3}), session.folder.at("data/frames/club/pframe02.jpg"));
    session.desk.on_modal<frmMatrix>([](frmMatrix & window) {
        window.cmbRows.set_text("3");
        window.cmbColumns.set_text("2");
        window.chkFrames.tick(true);
        window.cmdOk.click();
    });
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.lstFrames.double_click(0); });
    session.will_choose_list(session.list);
    EXPECT_EQ(session.previews_of([&] { session.main.mnuMatrix.click(); }), 1);
    EXPECT_EQ(session.main.design_record.name, "Frame_matrix");
    expect_states(session.main, "frmOrnaments_ frmBorder- mnuSaveDesign-");
    EXPECT_TRUE(session.main.collage.frames_design);
    session.desk.on_modal<frmImage>([](frmImage & image) { image.unload(); });
    session.main.cmdFlurn.click();
    expect_states(session.main, "mnuSaveDesign-");
}

TEST(mnuMatrix, can_be_saved_once_its_flurn_is_made)
{
    flow session;
    session.run(designer::matrix);
    expect_states(session.main, "mnuSaveDesign-");
    session.desk.on_modal<frmImage>([](frmImage & image) { image.unload(); });
    session.main.cmdFlurn.click();
    expect_states(session.main, "mnuSaveDesign+");
}

TEST(mnuLettering, has_an_outline_and_borders_and_no_ornaments)
{
    flow session;
    frmMain & main = session.main;
    main.collage.borders_free = false;
    main.chkSoftEdge.tick(true);
    session.run(designer::lettering);
    EXPECT_EQ(main.design_record.name, "Lettering");
    EXPECT_FALSE(main.collage.matrix_session);
    expect_states(main,
                  "mnuFile_ frmOrnaments_ chkSoftEdge0 chkOutline^ frmBorder+ optHuge+ frmSpace_ "
                  "optPreview1 picSample^ chkMatch_");
    EXPECT_EQ(session.previews(), 1);
}

TEST(mnuPuzzle, has_an_outline_and_no_borders)
{
    flow session;
    frmMain & main = session.main;
    main.optLarge.select();
    session.run(designer::puzzle);
    EXPECT_EQ(main.design_record.name, "Puzzle");
    EXPECT_EQ(worn_at(main, {.frame = -1}, 0).frame, 0) << "no frame around the square of a piece";
    expect_states(main, "mnuFile_ frmOrnaments_ chkOutline^ frmBorder- optNone1 frmSpace_ optPreview1");
    EXPECT_EQ(session.previews(), 1);
}

TEST(designer_menus, forget_a_quick_style)
{
    for (const designer chosen : all_designers) {
        flow session;
        frmMain & main = session.main;
        {
            const updating quiet(main);
            main.optScatter.select();
        }
        main.collage.quick_active = true;
        main.quick.quick_reduced = 3;
        main.collage.stretch_design = main.collage.design_flipped = main.collage.random_design = true;
        main.cmbBlanks.set_text("8");
        session.run(chosen);
        EXPECT_FALSE(main.collage.quick_active || main.collage.stretch_design ||
                     main.collage.design_flipped || main.collage.random_design);
        EXPECT_EQ(main.quick.quick_reduced, 0);
        EXPECT_EQ(main.cmbBlanks.text(), "0");
        expect_states(main, "optScatter0 optBlock0");
    }
}

TEST(designer_menus, a_second_collage_begins_like_the_first)
{
    flow session;
    for (const designer chosen :
         {designer::puzzle, designer::lettering, designer::matrix, designer::puzzle}) {
        EXPECT_EQ(session.previews_of([&] { session.run(chosen); }), 1);
        session.main.cmdCancel.click();
        expect_states(session.main, "mnuFile^");
    }
}

TEST(designer_menus, borders_are_free_again_after_a_puzzle)
{
    flow session;
    session.run(designer::puzzle);
    session.main.cmdCancel.click();
    session.run(designer::lettering);
    expect_states(session.main, "frmBorder+ optSmall+");
}

TEST(designer_menus, a_catalogue_without_the_reserved_design_is_told)
{
    for (const designer chosen : all_designers) {
        flow session;
        session.folder.write("data/designs.ini", "[Design001]\r\nName=Match\r\n");
        session.will_design(chosen);
        session.entry(chosen).click();
        EXPECT_EQ(session.desk.next_message(), "should not happen 2 ?");
        expect_states(session.main, "mnuFile^ frmOutput_");
        EXPECT_FALSE(session.main.catalogue.catalogue_at_end);
    }
}

TEST(designer_menus, a_template_that_cannot_be_written_keeps_the_window_open)
{
    flow session;
    session.main.data_folder = session.folder.at("nowhere");
    session.all.lettering.load();
    session.all.lettering.txtLettering.set_text("Hi");
    EXPECT_THROW(session.all.lettering.cmdOk.click(), platform_error);
    EXPECT_TRUE(session.all.lettering.loaded());
    EXPECT_EQ(session.main.lblDesign.tag, "");
}
