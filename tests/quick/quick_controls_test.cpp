#include "tests/quick/quick_session.h"

namespace {

// In the midst of a collage of blocks.
struct started_session : quick_session {
    started_session() { start(); }
};

}  // namespace

TEST(cmbSpace, a_choice_redraws_and_is_noted)
{
    started_session session;
    session.main.cmbSpace.show(true);
    EXPECT_EQ(session.previews_of([&] { session.main.cmbSpace.choose(15); }), 1);
}

TEST(cmbSpace, typing_turns_the_preview_off_until_the_user_wants_it)
{
    started_session session;
    EXPECT_EQ(session.previews_of([&] { session.main.cmbSpace.set_text("3"); }), 0);
    expect_states(session.main, "optPreview0");
    EXPECT_TRUE(session.main.preview_blocked);
    EXPECT_EQ(session.previews_of([&] { session.main.cmbSpace.set_text("35"); }), 0);
    EXPECT_EQ(session.previews_of([&] { session.main.optPreview.select(); }), 1);
}

TEST(cmbSpace, does_nothing_while_hidden)
{
    started_session session;
    session.main.cmbSpace.show(false);
    session.main.cmbSpace.set_text("35");
    session.main.cmbSpace.choose(2);
    expect_states(session.main, "optPreview1");
}

TEST(optBlock, shows_its_columns)
{
    started_session session;
    session.main.optScatter.select();
    session.main.frmShake.move({100, 200, 30, 40});
    session.main.chkMatch.move({60, 0, 1, 1});
    session.main.chkEvolve.move({500, 900, 1, 1});
    session.main.chkMatch.enable(false);
    for (option_button * each : session.main.border_options)
        each->enable(false);
    EXPECT_EQ(session.previews_of([&] { session.main.optBlock.select(); }), 1);
    expect_states(
        session.main,
        "frmOrnaments^ frmSpace^ cmbSpace^ lblBlanks^ cmbBlanks^ chkMatch^ optSample^ cmdMore_ "
        "frmAlign_ chkOutline_ frmSquares_ frmShake_ cmbShapes_ chkMix_ optNone+ optHuge+ chkMatch+ "
        "chkMatch1 chkRounded+ chkCaption-");
    EXPECT_EQ(session.main.frmSpace.place().left, 100);
    EXPECT_EQ(session.main.frmSpace.place().top, 200);
    EXPECT_EQ(session.main.cmbBlanks.place().left, 445);
    EXPECT_EQ(session.main.cmbBlanks.place().top, 1182);
    EXPECT_EQ(session.main.lblBlanks.place().left, 465);
    EXPECT_EQ(session.main.lblBlanks.place().top, 200);
    EXPECT_EQ(session.main.frmSquares.place().left, 30);
    EXPECT_EQ(session.main.frmSquares.place().top, 460);
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Block");
}

TEST(optScatter, shows_its_columns)
{
    started_session session;
    session.main.chkRounded.tick(true);
    session.main.chkCaption.enable(false);
    EXPECT_EQ(session.previews_of([&] { session.main.optScatter.select(); }), 1);
    expect_states(session.main,
                  "frmOrnaments^ chkMatch^ optSample^ cmdMore_ frmShake_ frmSpace_ frmAlign_ chkOutline_ "
                  "frmSquares_ cmbShapes_ chkMix_ chkRounded- chkRounded0 chkCaption+ chkMatch1");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Scatter");
}

TEST(optMatrix, shows_its_columns)
{
    started_session session;
    session.main.optScatter.select();
    EXPECT_EQ(session.previews_of([&] { session.main.optMatrix.select(); }), 1);
    expect_states(session.main,
                  "frmOrnaments^ frmShake^ chkMatch^ optSample^ frmAlign_ chkOutline_ frmSquares_ "
                  "cmbSpace_ cmbShapes_ chkMix_ optNone+ chkRounded+ chkCaption+ chkMatch1");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Matrix");
}

TEST(optMatrix, tilted_photos_have_no_round_corners)
{
    started_session session;
    session.main.chkRotate.tick(true);
    session.main.chkRounded.tick(true);
    session.main.chkRounded.enable(true);
    EXPECT_EQ(session.previews_of([&] { session.main.optMatrix.select(); }), 1);
    expect_states(session.main, "chkRounded- chkRounded0");
}

TEST(optShapes, shows_its_columns)
{
    started_session session;
    session.main.cmbShapes.set_text("Stars");
    session.main.frmShake.move({100, 200, 30, 40});
    EXPECT_EQ(session.previews_of([&] { session.main.optShapes.select(); }), 1);
    expect_states(session.main,
                  "cmbShapes^ chkMix^ frmOrnaments^ chkOutline_ chkCaption+ cmdMore_ frmSpace^ "
                  "cmbSpace^ frmAlign^ frmSquares^ frmShake_ chkMatch_ chkMatch0 chkRounded+ "
                  "optPreview1 optSample^");
    EXPECT_EQ(session.main.cmbShapes.text(), "Squares");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Shapes Squares");
    EXPECT_EQ(session.main.optAlignTop.caption(), "Top");
    EXPECT_EQ(session.main.frmSpace.place().left, 100);
    EXPECT_EQ(session.main.frmAlign.place().left, 222);
    EXPECT_EQ(session.main.frmAlign.place().top, 200);
    EXPECT_EQ(session.main.lblRows.caption(), "03      Rows");
    EXPECT_EQ(session.main.lblCols.caption(), "02    Columns");
}

TEST(optShapes, in_landscape_names_the_other_sides)
{
    started_session session;
    session.main.optLandscape.select();
    session.main.optShapes.select();
    EXPECT_EQ(session.main.optAlignTop.caption(), "Right");
    EXPECT_EQ(session.main.optAlignBottom.caption(), "Left");
    EXPECT_EQ(session.main.lblRows.caption(), "03    Columns");
    EXPECT_EQ(session.main.lblCols.caption(), "02      Rows");
}

TEST(cmbShapes, a_shape_takes_no_captions_and_no_second_preview_for_that)
{
    started_session session;
    session.main.optShapes.select();
    session.main.chkCaption.tick(true);
    EXPECT_EQ(session.previews_of([&] { session.main.cmbShapes.choose(2); }), 1);
    expect_states(session.main, "chkCaption0 chkCaption- frmOrnaments_ chkOutline^");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Shapes Stars");
    session.main.cmbShapes.choose(0);
    expect_states(session.main, "chkCaption+ frmOrnaments^ chkOutline_");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Shapes Squares");
}

TEST(cmbShapes, dots_stripes_and_targets_have_no_outline)
{
    started_session session;
    session.main.optShapes.select();
    const std::vector<std::string> & shapes = session.main.cmbShapes.items();
    for (int i = 1; i < static_cast<int>(shapes.size()); ++i) {
        session.main.cmbShapes.choose(i);
        EXPECT_EQ(session.main.chkOutline.visible(), i < 9) << shapes[static_cast<std::size_t>(i)];
    }
}

TEST(orientation, lays_the_window_out)
{
    started_session session;
    frmMain & main = session.main;
    main.optLandscape.select();
    EXPECT_EQ(main.picSample.place(), (box{688, 112, 457, 308}));
    EXPECT_EQ(main.width(), 17750);
    EXPECT_EQ(main.frmDisplay.place().left, 760);
    EXPECT_EQ(main.frmDisplay.place().top, 445);
    EXPECT_FALSE(main.poster_tall);
    EXPECT_EQ(main.optAlignTop.caption(), "Right");
    main.optSquare.select();
    EXPECT_EQ(main.picSample.place(), (box{688, 112, 308, 308}));
    EXPECT_EQ(main.width(), 15600);
    EXPECT_EQ(main.frmDisplay.place().left, 688);
    EXPECT_EQ(main.frmDisplay.place().top, 552);
    EXPECT_TRUE(main.poster_tall);
    EXPECT_EQ(main.optAlignTop.caption(), "Top");
    main.optPortrait.select();
    EXPECT_EQ(main.picSample.place(), (box{688, 60, 308, 457}));
    EXPECT_EQ(main.width(), 15600);
    EXPECT_TRUE(main.poster_tall);
    EXPECT_EQ(main.optAlignBottom.caption(), "Bottom");
    expect_states(main, "picSample^");
}

TEST(orientation, draws_once_each_time)
{
    started_session session;
    EXPECT_EQ(session.previews_of([&] { session.main.optLandscape.select(); }), 1);
    expect_states(session.main, "optSample0 optPreview1");
    EXPECT_EQ(session.main.lblRows.caption(), "00    Columns");
    EXPECT_EQ(session.previews_of([&] { session.main.optSquare.select(); }), 1);
    EXPECT_EQ(session.main.lblRows.caption(), "00      Rows");
}

TEST(orientation, with_shapes_the_preview_stays_on)
{
    started_session session;
    session.main.optShapes.select();
    EXPECT_EQ(session.previews_of([&] { session.main.optLandscape.select(); }), 1);
    expect_states(session.main, "optPreview1");
}

TEST(orientation, that_is_in_force_already_draws_nothing)
{
    started_session session;
    session.main.optPortrait.select(false);
    EXPECT_EQ(session.previews_of([&] { session.main.optPortrait.select(); }), 0);
    expect_states(session.main, "optPreview1");
}

TEST(orientation, drops_a_background_picture_of_the_wrong_shape)
{
    struct row {
        bool picture_tall;
        option_button frmMain::*from;
        option_button frmMain::*to;
        bool kept;
    };
    const row rows[] = {{true, &frmMain::optPortrait, &frmMain::optLandscape, false},
                        {false, &frmMain::optPortrait, &frmMain::optLandscape, true},
                        {false, &frmMain::optLandscape, &frmMain::optPortrait, false},
                        {true, &frmMain::optLandscape, &frmMain::optPortrait, true},
                        {true, &frmMain::optPortrait, &frmMain::optSquare, true},
                        {false, &frmMain::optPortrait, &frmMain::optSquare, true}};
    for (const row & each : rows) {
        started_session session;
        session.desk.keeps_messages = true;
        (session.main.*each.from).select();
        session.main.txtBGimage.set_text("/a.jpg");
        session.main.optBGimage.select();
        session.main.bg_portrait = each.picture_tall;
        (session.main.*each.to).select();
        EXPECT_EQ(session.main.txtBGimage.text(), each.kept ? "/a.jpg" : "");
        EXPECT_EQ(session.main.optBGimage.selected(), each.kept);
        EXPECT_EQ(session.main.optSolid.selected(), !each.kept);
        EXPECT_FALSE(session.main.skip_preview_click);
    }
}

TEST(orientation, notes_the_shape_of_the_background_but_not_for_a_square)
{
    started_session session;
    session.main.optLandscape.select();
    EXPECT_FALSE(session.main.bg_portrait);
    session.main.optSquare.select();
    EXPECT_FALSE(session.main.bg_portrait);
    session.main.optPortrait.select();
    EXPECT_TRUE(session.main.bg_portrait);
    session.main.optSquare.select();
    EXPECT_TRUE(session.main.bg_portrait);
}

TEST(row_and_column_buttons, change_the_grid_and_redraw)
{
    started_session session;
    frmMain & main = session.main;
    EXPECT_EQ(session.previews_of([&] { main.cmdRowUp.click(); }), 1);
    main.cmdRowUp.click();
    main.cmdRowDown.click();
    EXPECT_EQ(session.previews_of([&] { main.cmdColDown.click(); }), 1);
    EXPECT_EQ(main.shape_row_bias, 1);
    EXPECT_EQ(main.shape_column_bias, -1);
    main.cmdColUp.click();
    EXPECT_EQ(main.shape_column_bias, 0);
}

TEST(row_and_column_buttons, count_themselves_while_the_preview_is_off)
{
    started_session session;
    frmMain & main = session.main;
    main.shape_rows = 9;
    main.shape_columns = 12;
    main.optSample.select();
    main.cmdRowUp.click();
    EXPECT_EQ(main.lblRows.caption(), "10    Rows");
    main.cmdColDown.click();
    EXPECT_EQ(main.lblCols.caption(), "11  Columns");
    main.cmdColUp.click();
    main.cmdRowDown.click();
    EXPECT_EQ(main.lblRows.caption(), "09      Rows");
    EXPECT_EQ(main.lblCols.caption(), "12  Columns");
}

TEST(row_and_column_buttons, stop_at_one_while_the_preview_is_off)
{
    started_session session;
    frmMain & main = session.main;
    main.shape_rows = 2;
    main.optSample.select();
    main.cmdRowDown.click();
    main.cmdRowDown.click();
    EXPECT_EQ(main.lblRows.caption(), "01      Rows");
    EXPECT_EQ(main.shape_row_bias, -1);
}
