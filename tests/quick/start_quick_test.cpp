#include "quick/start_quick.h"

#include "support/colors.h"
#include "support/platform_error.h"
#include "tests/quick/quick_session.h"

#include <filesystem>

namespace {

void expect_choosing(const quick_session & session)
{
    expect_states(session.main, "mnuFile^ frmOutput_ frmStyle_ picSample_");
    EXPECT_FALSE(session.main.collage.quick_active);
    EXPECT_FALSE(session.main.updating_controls);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

}  // namespace

TEST(mnuQuick, photos_lead_to_a_collage_of_blocks_at_once)
{
    quick_session session;
    EXPECT_TRUE(session.main.mnuQuick.enabled());
    EXPECT_EQ(session.previews_of([&] { session.start(); }), 1);
    EXPECT_EQ(session.desk.shown_windows, (std::vector<std::string>{"frmSelectPhotos", "frmPhotoCnt"}));
    EXPECT_EQ(session.written().size(), 4U);
    EXPECT_EQ(session.main.picSample.file(), joined(session.main.data_folder, "tmp/finished.jpg"));
    EXPECT_EQ(session.main.caption(), "F i n i s h i n g   t o u c h e s");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Block");
    EXPECT_EQ(session.main.lblDesign.tag, "Match");
    EXPECT_EQ(session.main.back_color(), about_background);
    EXPECT_TRUE(session.main.collage.quick_active);
    EXPECT_FALSE(session.main.updating_controls);
    EXPECT_TRUE(session.main.poster_tall);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(mnuQuick, shows_the_controls_of_blocks)
{
    quick_session session;
    session.start();
    expect_states(session.main,
                  "mnuFile_ frmOutput^ frmStyle^ frmOrientation^ frmSpace^ cmbSpace^ frmOrnaments^ "
                  "frmOrnaments+ frmBorder^ frmBorder+ optNone+ optHuge+ lblBlanks^ cmbBlanks^ chkMatch^ "
                  "chkMatch1 cmdShuffle^ cmdShuffle+ chkRandom^ picSample^ optPreview1 optSample^ optBlock1 "
                  "optPortrait1 chkCaption- cmdMore_ frmAlign_ chkOutline_ frmSquares_ frmShake_ cmbShapes_ "
                  "chkMix_ picSplash_ chkEvolve_");
    EXPECT_EQ(session.main.cmbBlanks.text(), "0");
    EXPECT_EQ(session.main.cmdMore.caption(), "Fewer photos");
}

TEST(mnuQuick, takes_over_the_photos_as_they_were_counted)
{
    quick_session session;
    session.start(2, 1);
    EXPECT_EQ(session.main.quick.photos_portrait, 2);
    EXPECT_EQ(session.main.quick.photos_landscape, 1);
    EXPECT_EQ(session.main.quick.photo_shapes, "p:p:l:");
    EXPECT_EQ(session.written().size(), 3U);
}

TEST(mnuQuick, clears_what_other_collages_left)
{
    quick_session session;
    frmMain & main = session.main;
    main.shape_row_bias = main.shape_column_bias = 3;
    main.quick.quick_reduced = 4;
    main.quick.quick_max = 9;
    main.quick.matrix_notice_done = true;
    main.collage.frames_design = main.collage.random_design = true;
    main.collage.matrix_both = main.collage.matrix_rotate = main.collage.matrix_resize = true;
    main.cmdMore.tag = "fewer";
    main.cmbBlanks.set_text("8");
    main.optLandscape.select();
    main.optMatrix.select();
    session.start();
    EXPECT_EQ(main.shape_row_bias, 0);
    EXPECT_EQ(main.shape_column_bias, 0);
    EXPECT_EQ(main.quick.quick_reduced, 0);
    EXPECT_EQ(main.quick.quick_max, 64);
    EXPECT_FALSE(main.quick.matrix_notice_done || main.collage.frames_design || main.collage.random_design ||
                 main.collage.matrix_both || main.collage.matrix_rotate || main.collage.matrix_resize);
    EXPECT_EQ(main.cmdMore.tag, "");
    expect_states(main, "optPortrait1 optBlock1 optPreview1");
    EXPECT_EQ(session.written().size(), 4U);
}

TEST(mnuQuick, a_second_collage_begins_like_the_first)
{
    quick_session session;
    session.start();
    session.main.optScatter.select();
    session.main.optSample.select();
    session.main.cmdCancel.click();
    EXPECT_FALSE(session.main.collage.quick_active);
    EXPECT_EQ(session.previews_of([&] { session.start(); }), 1);
    expect_states(session.main, "optBlock1 optPreview1 frmSpace^ frmShake_");
    EXPECT_EQ(session.written().size(), 4U);
}

TEST(mnuQuick, blocks_that_were_selected_before_are_laid_out_anew)
{
    quick_session session;
    session.start();
    session.main.frmSpace.show(false);
    session.main.cmdCancel.click();
    session.main.chkMatch.enable(false);
    session.start();
    expect_states(session.main, "frmSpace^ chkMatch+ optBlock1");
}

TEST(mnuQuick, a_cancel_of_the_choice_stays_in_the_choosing_stage)
{
    quick_session session;
    session.will_cancel();
    session.main.mnuQuick.click();
    expect_choosing(session);
    EXPECT_EQ(session.desk.shown_windows, std::vector<std::string>{"frmSelectPhotos"});
}

TEST(mnuQuick, a_choice_cancelled_before_does_not_count)
{
    quick_session session;
    session.main.photo_choice_cancelled = true;
    session.start();
    EXPECT_TRUE(session.main.collage.quick_active);
}

TEST(mnuQuick, a_selection_of_nothing_is_forgotten)
{
    quick_session session;
    session.make_photos(0, 0);
    session.will_choose_selection();
    session.main.mnuQuick.click();
    EXPECT_EQ(session.main.txtPhotos.tag, "");
    expect_choosing(session);
}

TEST(mnuQuick, a_folder_of_two_photos_is_told_with_its_count)
{
    quick_session session;
    session.make_photos(1, 1);
    session.will_choose_folder();
    session.main.mnuQuick.click();
    EXPECT_EQ(session.desk.next_message(),
              "There are only  2  photos in that folder.\r\nNo templates are available for  2  "
              "photos.\r\n\r\nPlease choose another folder.");
    expect_choosing(session);
}

TEST(mnuQuick, an_empty_folder_is_told)
{
    quick_session session;
    session.make_photos(0, 0);
    session.will_choose_folder();
    session.main.mnuQuick.click();
    EXPECT_EQ(session.desk.next_message(), "There are no photos in that folder.");
    expect_choosing(session);
}

TEST(mnuQuick, a_folder_of_four_is_noted_by_its_path)
{
    quick_session session;
    session.will_choose_folder();
    session.main.mnuQuick.click();
    EXPECT_EQ(session.main.lblOutput.caption(), "Using photos from   " + session.folder.path() + "/photos");
    EXPECT_EQ(session.written().size(), 4U);
}

TEST(mnuQuick, a_list_of_one_photo_is_told_with_its_count)
{
    quick_session session;
    session.start(1, 0);
    EXPECT_EQ(session.desk.next_message(),
              "That photo list contains only  1  photos.\r\nNo templates are available for  1  photos.");
    expect_choosing(session);
}

TEST(mnuQuick, an_empty_list_ends_without_a_word)
{
    quick_session session;
    session.start(0, 0);
    expect_choosing(session);
}

TEST(mnuQuick, a_list_of_three_is_noted)
{
    quick_session session;
    session.start(2, 1);
    EXPECT_EQ(session.main.lblOutput.caption(), "Using photos from   mine");
}

TEST(mnuQuick, a_selection_of_two_is_too_few)
{
    quick_session session;
    session.make_photos(2, 0);
    session.will_choose_selection();
    session.main.mnuQuick.click();
    EXPECT_EQ(session.desk.next_message(), "No templates are available for  2  photos.");
    expect_choosing(session);
}

TEST(mnuQuick, a_selection_of_four_is_noted_with_two_digits)
{
    quick_session session;
    session.will_choose_selection();
    session.main.mnuQuick.click();
    EXPECT_EQ(session.main.lblOutput.caption(), "Using 04 selected photos...");
}

TEST(mnuQuick, a_missing_record_is_told_and_the_way_goes_on)
{
    quick_session session;
    session.folder.write("data/designs.ini", "[Design001]\r\nName=Other\r\nStyle=Place\r\n");
    session.desk.keeps_messages = true;  // the record that is left has no template
    session.start();
    EXPECT_EQ(session.desk.next_message(), "should not happen 2 ?");
    EXPECT_EQ(session.desk.next_message(), "should not happen 2 ?");  // for the preview
    EXPECT_TRUE(session.main.collage.quick_active);
    EXPECT_EQ(session.written().size(), 4U);
}

TEST(mnuQuick, a_background_that_a_design_forbade_is_free_again)
{
    quick_session session;
    frmMain & main = session.main;
    {
        const updating quiet(main);
        main.txtBGimage.set_text("/mine.jpg");
        main.collage.forced.set_text(main.txtBGimage, "/a.jpg");
    }
    main.optBGimage.select();
    main.optSolid.enable(false);
    session.start();
    expect_states(main, "optSolid+ optSolid1 txtBGimage_ chkClear-");
    EXPECT_EQ(main.txtBGimage.text(), "/mine.jpg");
    EXPECT_FALSE(main.skip_preview_click);
}

TEST(mnuQuick, photos_of_which_too_few_can_be_read_are_scattered)
{
    quick_session session;
    session.folder.write("install/quick_scatter.ini", "01:01:00:three\r\nSQUARES\r\n01:01:00:three\r\n");
    session.make_photos(1, 2);
    for (const std::size_t unreadable : {1U, 2U})
        session.folder.write("photos/" + std::to_string(unreadable) + ".jpg", "no picture");
    session.desk.keeps_messages = true;  // what can't be read matches no place
    EXPECT_EQ(session.previews_of([&] { session.start(); }), 1);
    expect_states(session.main, "optScatter1 optBlock0 frmSpace_ chkRounded- chkCaption+ frmOutput^");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Scatter");
    EXPECT_EQ(session.written().size(), 3U);
}

TEST(mnuQuick, without_a_scatter_for_those_few_it_says_so_and_stays)
{
    quick_session session;
    session.make_photos(1, 2);
    for (const std::size_t unreadable : {1U, 2U})
        session.folder.write("photos/" + std::to_string(unreadable) + ".jpg", "no picture");
    session.start();
    EXPECT_TRUE(session.desk.next_message().starts_with("These photos were left out:\r\n"));
    EXPECT_EQ(session.desk.next_message(), "Can't find a collage template to match these photos.  Sorry4.");
    expect_choosing(session);
}

TEST(mnuQuick, without_a_photo_that_can_be_read_there_is_one_box_that_says_why)
{
    quick_session session;
    session.make_photos(1, 2);
    for (const std::string & photo : session.photos)
        session.folder.write("photos/" + name_of(photo), "no picture");
    session.start();
    EXPECT_TRUE(session.desk.next_message().starts_with("None of your photos can be used:\r\n"));
    EXPECT_TRUE(session.desk.messages.empty());
    expect_choosing(session);
}

// ---- other photos

TEST(cmdPhotos, other_photos_find_their_own_template)
{
    quick_session session;
    session.start();
    session.make_photos(2, 1);
    session.will_choose_folder();
    EXPECT_EQ(session.previews_of([&] { session.main.cmdPhotos.click(); }), 1);
    EXPECT_EQ(session.written().size(), 3U);
    EXPECT_EQ(session.main.quick.photos_landscape, 1);
    EXPECT_EQ(session.main.lblOutput.caption(), "Using photos from   " + session.folder.path() + "/photos");
}

TEST(cmdPhotos, a_matrix_begins_anew_with_other_photos)
{
    quick_session session;
    session.start();
    session.main.optMatrix.select();
    EXPECT_NE(session.main.quick.matrix_offset, -1);
    session.main.quick.matrix_notice_done = true;
    session.main.optSample.select();
    session.main.cmdMore.tag = "fewer";
    session.will_choose_list();
    session.main.cmdPhotos.click();
    EXPECT_EQ(session.main.quick.matrix_offset, -1);
    EXPECT_FALSE(session.main.quick.matrix_notice_done);
    EXPECT_EQ(session.main.cmdMore.tag, "");
}

TEST(cmdPhotos, too_few_photos_for_blocks_are_scattered_or_told)
{
    quick_session session;
    session.start();
    session.make_photos(1, 1);
    session.will_choose_list();
    session.main.cmdPhotos.click();
    EXPECT_EQ(session.desk.next_message(), "Can't find a collage template to match these photos.  Sorry4.");
    expect_states(session.main, "optScatter1");
    EXPECT_EQ(session.written().size(), 4U) << "the template before stays";
}
