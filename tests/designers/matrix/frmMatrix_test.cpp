#include "support/platform_error.h"
#include "tests/designers/designer_session.h"

namespace {

using lines = std::vector<std::string>;

struct matrix_window : designer_session {
    matrix_window() { window.load(); }
    frmMatrix & window = all.matrix;

    void type(combo_box & box, const std::string & text) const { box.set_text(text); }
    void ok() const { window.cmdOk.click(); }
    std::string borders() const
    {
        return window.cmbTop.text() + " " + window.cmbBottom.text() + " " + window.cmbLeft.text() + " " +
               window.cmbRight.text();
    }
    /// How many samples `step` draws.
    template <typename Step>
    int samples_of(Step step) const
    {
        const int before = window.picSample.load_count();
        step();
        return window.picSample.load_count() - before;
    }
};

}  // namespace

TEST(frmMatrix, starts_with_two_by_two_and_locked_rows)
{
    const matrix_window session;
    const frmMatrix & window = session.window;
    EXPECT_EQ(window.caption(), "M a t r i x   F l u r n");
    EXPECT_EQ(window.cmbRows.text(), "2");
    EXPECT_EQ(window.cmbColumns.text(), "2");
    EXPECT_EQ(session.borders(), "100 100 100 100");
    EXPECT_EQ(window.cmbHGap.text() + " " + window.cmbVGap.text(), "20 20");
    expect_states(window,
                  "chkRowLock1 chkColumnLock0 chkLock0 optPortraitPhotos1 optPortraitPoster1 chkResize0 "
                  "chkRotate0 chkFrames0 chkFrames+");
    EXPECT_EQ(window.picSample.place(), (box{0, 0, 333, 500}));
    EXPECT_EQ(window.picSample.file(), joined(session.main.data_folder, "tmp/matrix_sample.bmp"));
    EXPECT_EQ(window.cmbRows.items().size(), 25U);
    EXPECT_EQ(window.cmbColumns.items(), lines{"2"});
}

TEST(frmMatrix, starts_anew_each_time)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.optLandscapePoster.select();
    window.optBoth.select();
    window.chkRotate.tick(true);
    window.chkColumnLock.tick(true);
    window.cmbRows.set_text("9");
    window.unload();
    window.load();
    expect_states(window,
                  "optPortraitPoster1 optPortraitPhotos1 chkRotate0 chkRowLock1 chkColumnLock0 "
                  "chkFrames+");
    EXPECT_EQ(window.cmbRows.text() + window.cmbColumns.text(), "22");
    EXPECT_EQ(window.picSample.place(), (box{0, 0, 333, 500}));
}

TEST(frmMatrix, the_borders_lists_end_at_their_limits)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    EXPECT_EQ(window.cmbTop.tag + window.cmbBottom.tag + window.cmbLeft.tag + window.cmbRight.tag,
              "2200220014001400");
    EXPECT_EQ(window.cmbTop.items().back(), "2200");
    EXPECT_EQ(window.cmbRight.items().back(), "1400");
    window.optLandscapePoster.select();
    EXPECT_EQ(window.cmbBottom.tag + window.cmbLeft.tag, "14002200");
    EXPECT_EQ(window.cmbBottom.items().back(), "1400");
}

TEST(frmMatrix, locked_rows_lead_the_columns)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.cmbRows.choose(6);
    EXPECT_EQ(window.cmbRows.text(), "7");
    EXPECT_EQ(window.cmbColumns.text(), "6");
    window.cmbRows.set_text("12");
    EXPECT_EQ(window.cmbColumns.text(), "10");
    window.cmbColumns.set_text("4");
    EXPECT_EQ(window.cmbRows.text(), "12") << "the other count is the user's";
}

TEST(frmMatrix, locked_columns_lead_the_rows)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.chkColumnLock.tick(true);
    expect_states(window, "chkRowLock0 chkColumnLock1");
    window.cmbColumns.set_text("10");
    EXPECT_EQ(window.cmbRows.text(), "11");
    EXPECT_EQ(window.cmbRows.items(), (lines{"11", "12"}));
    window.cmbRows.choose(1);
    EXPECT_EQ(window.cmbColumns.text(), "10");
    window.chkRowLock.tick(true);
    expect_states(window, "chkRowLock1 chkColumnLock0");
}

TEST(frmMatrix, without_a_lock_every_count_is_offered)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.cmbRows.set_text("7");
    window.chkRowLock.tick(false);
    EXPECT_EQ(window.cmbRows.items().size(), 25U);
    EXPECT_EQ(window.cmbColumns.items().size(), 25U);
    EXPECT_EQ(window.cmbRows.text() + window.cmbColumns.text(), "76") << "the counts stay";
    window.cmbRows.set_text("3");
    EXPECT_EQ(window.cmbColumns.text(), "6");
}

TEST(frmMatrix, other_orientations_are_fitted_anew)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.cmbRows.set_text("4");
    window.optLandscapePhotos.select();
    EXPECT_EQ(window.cmbColumns.text(), "2");
    window.optLandscapePoster.select();
    EXPECT_EQ(window.cmbColumns.text(), "4");
    EXPECT_EQ(window.picSample.place(), (box{0, 0, 500, 333}));
}

TEST(frmMatrix, borders_that_move_together_stop_at_their_own_limits)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.chkLock.tick(true);
    window.cmbLeft.set_text("150");
    EXPECT_EQ(session.borders(), "150 150 150 150");
    window.cmbTop.set_text("1500");
    EXPECT_EQ(session.borders(), "1500 1500 900 1400") << "left and right are cut together";
    expect_states(window, "chkLock1");
    window.chkLock.tick(false);
    window.cmbTop.set_text("10");
    EXPECT_EQ(session.borders(), "10 1500 900 1400");
}

TEST(frmMatrix, a_border_beyond_its_limit_is_cut)
{
    const matrix_window session;
    session.type(session.window.cmbTop, "2500");
    session.type(session.window.cmbLeft, "99999999999");
    session.type(session.window.cmbRight, "-20");
    EXPECT_EQ(session.borders(), "2200 100 1400 0");
    session.type(session.window.cmbTop, "some");
    EXPECT_EQ(session.window.cmbTop.text(), "some") << "reads as 0, and who types isn't disturbed";
}

TEST(frmMatrix, every_change_draws_one_sample)
{
    const matrix_window session;
    frmMatrix & window = session.window;
    window.chkLock.tick(true);
    EXPECT_EQ(session.samples_of([&] { window.cmbRows.set_text("5"); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.cmbColumns.set_text("9"); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.cmbTop.set_text("300"); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.cmbHGap.set_text("30"); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.cmbVGap.choose(5); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.optBoth.select(); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.optLandscapePoster.select(); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.chkRotate.tick(true); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.chkResize.tick(true); }), 1);
    EXPECT_EQ(session.samples_of([&] { window.chkColumnLock.tick(true); }), 1);
}

TEST(frmMatrix, ok_writes_both_templates_and_sets_the_design)
{
    const matrix_window session;
    session.main.collage.frames_design = true;
    session.main.collage.frame_set_name = "gone";
    session.window.chkRotate.tick(true);
    session.ok();
    EXPECT_EQ(session.lines_of("__matrix"), (lines{"150:150:2:2:0:1:0:0:", "20:20:1340:840:0:-1:-1:0:"}));
    EXPECT_EQ(session.lines_of("__matrix_"), (lines{"100:100:2:2:0:1:0:0:", "20:20:1390:890:0:-1:-1:0:"}));
    const frmMain & main = session.main;
    EXPECT_EQ(main.matrix_size, "2x2");
    EXPECT_EQ(main.lblDesign.caption(), "Matrix 2x2");
    EXPECT_EQ(main.lblDesign.tag, "Matrix grid");
    EXPECT_TRUE(main.poster_tall);
    EXPECT_TRUE(main.collage.matrix_rotate);
    EXPECT_FALSE(main.collage.matrix_both || main.collage.matrix_resize || main.collage.frames_design);
    EXPECT_EQ(main.collage.frame_set_name, "");
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmMatrix, a_landscape_poster_turns_the_main_window)
{
    const matrix_window session;
    session.window.optLandscapePoster.select();
    session.window.optBoth.select();
    session.ok();
    expect_states(session.main, "optLandscape1 picSample_");
    EXPECT_FALSE(session.main.poster_tall);
    EXPECT_TRUE(session.main.collage.matrix_both);
    EXPECT_EQ(session.main.collage_width, 3000);
    EXPECT_EQ(session.main.collage_height, 2000);
}

TEST(frmMatrix, what_cannot_be_laid_out_is_told_and_nothing_is_lost)
{
    matrix_window session;
    session.folder.write("data/designs/__matrix", "old\r\n");
    for (const char * rows : {"", "many", "0", "-4"}) {
        session.type(session.window.cmbRows, rows);
        session.ok();
        EXPECT_EQ(session.desk.next_message(), "Please choose at least one row and one column.") << rows;
    }
    for (const char * rows : {"9999", "99999999999999"}) {
        session.type(session.window.cmbRows, rows);
        session.ok();
        EXPECT_EQ(session.desk.next_message(),
                  "There is no room for the photos.\r\n\r\nPlease choose smaller borders and gaps, or fewer "
                  "rows and columns.")
            << rows;
    }
    EXPECT_TRUE(session.window.loaded());
    EXPECT_EQ(session.lines_of("__matrix"), lines{"old"});
    EXPECT_EQ(session.main.lblDesign.tag, "");
}

TEST(frmMatrix, a_cancel_leaves_the_design_alone)
{
    const matrix_window session;
    session.window.cmdCancel.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.main.lblDesign.tag, "");
    EXPECT_TRUE(session.lines_of("__matrix").empty());
}

TEST(frmMatrix, without_a_frame_set_the_user_is_told)
{
    matrix_window session;
    session.main.collage.frame_set_name = "of another collage";
    session.window.chkFrames.tick(true);
    EXPECT_EQ(session.desk.next_message(), "You have no custom frames at this time.");
    expect_states(session.window, "chkFrames0");
    EXPECT_EQ(session.main.collage.frame_set_name, "");
}

TEST(frmMatrix, cells_wear_the_chosen_frame_set)
{
    matrix_window session;
    session.make_frame_set("club", 4);
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) {
        chooser.lstFrames.select(0);
        chooser.cmdDone.click();
    });
    session.window.chkRowLock.tick(false);
    session.type(session.window.cmbRows, "3");
    EXPECT_EQ(session.samples_of([&] { session.window.chkFrames.tick(true); }), 1);
    expect_states(session.window, "chkFrames1");
    session.ok();
    const lines all = session.lines_of("__matrix_");
    ASSERT_EQ(all.size(), 12U);
    EXPECT_EQ(all[0], R"(100:100:920:607:0:0:0:0:frames\club\pframe01.jpg)");
    EXPECT_EQ(all[11], "2017:1329:727:540:0:0:0:0:");
    EXPECT_EQ(session.lines_of("__matrix"), all);
    const frmMain & main = session.main;
    EXPECT_EQ(main.lblDesign.caption(), "Custom Frame Matrix 3x2");
    EXPECT_EQ(main.lblDesign.tag, "Frame_matrix");
    EXPECT_EQ(main.collage.frame_set_name, "club");
    EXPECT_TRUE(main.collage.frames_design);
}

TEST(frmMatrix, a_frame_set_with_a_photo_list_goes_with_its_photos)
{
    matrix_window session;
    session.folder.write("data/frames/club/design.ini",
                         "[Frame Design]\r\nPicture List=mine\r\nNumber of Captions=2\r\n");
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.lstFrames.double_click(0); });
    session.window.chkRowLock.tick(false);
    session.type(session.window.cmbRows, "3");
    session.window.chkFrames.tick(true);
    EXPECT_TRUE(session.main.txtPhotos.tag.empty()) << "who cancels keeps his photos";
    session.ok();
    EXPECT_EQ(session.lines_of("__matrix_").at(2), R"(100:1293:920:607:0:0:0:0:frames\club\pframe01.jpg)")
        << "the list's one upright photo comes again";
    EXPECT_EQ(session.main.txtPhotos.tag, session.list) << "the photo chooser opens with it";
    EXPECT_EQ(session.main.txtPhotos.text(), "mine");
}

TEST(frmMatrix, a_frame_set_whose_photo_list_is_gone_is_not_worn)
{
    matrix_window session;
    session.folder.write("data/frames/club/design.ini", "[Frame Design]\r\nPicture List=gone\r\n");
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.lstFrames.double_click(0); });
    session.window.chkFrames.tick(true);
    EXPECT_EQ(session.desk.next_message(), "The file.pls index is missing for that photolist.");
    expect_states(session.window, "chkFrames0");
}

TEST(frmMatrix, backing_out_of_the_frame_sets_unticks_the_box)
{
    matrix_window session;
    session.make_frame_set("club", 4);
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.cmdDelete.click(); });
    session.window.chkFrames.tick(true);
    expect_states(session.window, "chkFrames0");
    session.ok();
    EXPECT_EQ(session.main.lblDesign.tag, "Matrix grid");
    EXPECT_EQ(session.main.collage.frame_set_name, "");
}

TEST(frmMatrix, frames_taken_off_again_are_forgotten)
{
    matrix_window session;
    session.make_frame_set("club", 4);
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.lstFrames.double_click(0); });
    session.window.chkFrames.tick(true);
    session.window.chkFrames.tick(false);
    session.ok();
    EXPECT_EQ(session.lines_of("__matrix").size(), 2U);
    EXPECT_EQ(session.main.collage.frame_set_name, "");
    EXPECT_FALSE(session.main.collage.frames_design);
}

TEST(frmMatrix, a_frame_set_without_its_settings_leaves_the_box_unticked)
{
    matrix_window session;
    session.folder.write("data/frames/by hand/captions", "");
    session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.lstFrames.double_click(0); });
    EXPECT_THROW(session.window.chkFrames.tick(true), platform_error);
    expect_states(session.window, "chkFrames0");
    EXPECT_FALSE(session.window.settling);
}

TEST(frmMatrix, gaps_that_frames_cannot_keep_are_told_for_both_templates)
{
    matrix_window session;
    session.make_frame_set("club", 1);
    for (const char * complaint : {"Should not happen 1 ?", "Shouldnothappen 2?"}) {
        session.desk.on_modal<frmCustom>([](frmCustom & chooser) { chooser.lstFrames.double_click(0); });
        session.window.chkFrames.tick(true);
        session.ok();
        EXPECT_EQ(session.desk.next_message(), complaint);
        EXPECT_EQ(session.desk.next_message(), complaint);
        session.window.load();
        session.window.optLandscapePoster.select();
        session.window.chkRowLock.tick(false);
        session.type(session.window.cmbColumns, "2");
    }
}

TEST(frmMatrix, frames_are_for_single_cells)
{
    const matrix_window session;
    session.window.optBoth.select();
    expect_states(session.window, "chkFrames- chkFrames0");
    session.window.optLandscapePhotos.select();
    expect_states(session.window, "chkFrames+");
}

TEST(frmMatrix, without_its_work_folder_there_is_no_sample)
{
    opened_session session;
    session.main.data_folder = session.folder.path() + "/nowhere";
    session.all.matrix.load();
    EXPECT_EQ(session.all.matrix.picSample.load_count(), 0);
}
