#include "session/new_poster.h"
#include "tests/session/opened_session.h"

namespace {

// One design record, changed in one or a few keys, and the states that it has to bring about.
struct record_row {
    const char * name;
    void (*change)(frmMain &);
    const char * states;
};

class new_poster_applies : public testing::TestWithParam<record_row> {};

std::string row_name(const testing::TestParamInfo<record_row> & info)
{
    return info.param.name;
}

constexpr const char * borders_enabled = "optNone+ optTiny+ optSmall+ optMedium+ optLarge+ optHuge+";
constexpr const char * borders_disabled =
    "optNone- optTiny- optSmall- optMedium- optLarge- optHuge- optNone1";

}  // namespace

TEST_P(new_poster_applies, what_the_record_says)
{
    opened_session session;
    GetParam().change(session.main);
    new_poster(session.main);
    expect_states(session.main, GetParam().states);
    EXPECT_EQ(session.previews(), 0);
    EXPECT_FALSE(session.main.updating_controls);
}

INSTANTIATE_TEST_SUITE_P(
    stage, new_poster_applies,
    testing::Values(
        record_row{"enters_the_finishing_stage", [](frmMain &) {},
                   "mnuFile_ mnuDesigned_ frmOutput^ frmOrnaments^ frmBackground^ frmCaption^ frmButtons^ "
                   "frmBorder^ picSample^ frmDisplay^ frmStyle_ cmdHelp+ mnuSaveDesign- chkRandom^ "
                   "cmdShuffle^ txtBGimage_ chkRounded+ chkCaption+ chkSoftEdge+"},
        record_row{"shows_what_was_hidden",
                   [](frmMain & main) {
                       main.chkRandom.show(false);
                       main.cmdShuffle.show(false);
                       main.cmdHelp.enable(false);
                       main.mnuSaveDesign.enable(true);
                   },
                   "chkRandom^ cmdShuffle^ cmdHelp+ mnuSaveDesign-"},
        record_row{"block_keeps_the_spacing_open",
                   [](frmMain & main) {
                       main.collage.quick_active = true;
                       main.optBlock.on_click = nullptr;
                       main.optBlock.select();
                       main.design_record.match = "No";
                   },
                   "frmSpace^ frmShake_"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(
    matching, new_poster_applies,
    testing::Values(
        record_row{"yes",
                   [](frmMain & main) {
                       main.cmbSpace.show(false);
                       main.collage.quick_active = true;
                   },
                   "chkMatch^ chkMatch1 frmShake_ cmbSpace^"},
        record_row{"empty", [](frmMain & main) { main.design_record.match = ""; }, "chkMatch^ chkMatch1"},
        record_row{"no", [](frmMain & main) { main.design_record.match = "No"; }, "chkMatch_ chkMatch0"},
        record_row{"both_matrix",
                   [](frmMain & main) {
                       main.collage.matrix_both = true;
                       main.design_record.match = "No";
                       main.chkCaption.tick(true);
                   },
                   "chkMatch1 chkMatch- chkCaption0 chkCaption-"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(frames_of_a_set, new_poster_applies,
                         testing::Values(record_row{"untick_all_three",
                                                    [](frmMain & main) {
                                                        main.design_record.file = "__frames";
                                                        main.chkSoftEdge.tick(true);
                                                    },
                                                    "chkSoftEdge0 chkCaption0 chkRounded0 frmOrnaments^"},
                                         record_row{"a_matrix_of_frames_too",
                                                    [](frmMain & main) {
                                                        main.collage.frames_design = true;
                                                        main.chkRounded.tick(true);
                                                    },
                                                    "chkRounded0"}),
                         row_name);

INSTANTIATE_TEST_SUITE_P(
    borders, new_poster_applies,
    testing::Values(record_row{"a_grid_has_none",
                               [](frmMain & main) {
                                   main.design_record.style = "Matrix";
                                   main.optHuge.select();
                               },
                               borders_disabled},
                    record_row{"free_again",
                               [](frmMain & main) {
                                   for (option_button * each : main.border_options)
                                       each->enable(false);
                               },
                               borders_enabled},
                    record_row{"not_free_are_left_alone",
                               [](frmMain & main) {
                                   main.collage.borders_free = false;
                                   main.optHuge.enable(false);
                               },
                               "optHuge- optTiny+"},
                    record_row{"no", [](frmMain & main) { main.design_record.borders = "No"; },
                               "frmBorder- frmBorder_"},
                    record_row{"any_other_value", [](frmMain & main) { main.design_record.borders = "Yes"; },
                               "frmBorder+ frmBorder^"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(
    background, new_poster_applies,
    testing::Values(record_row{"either", [](frmMain &) {}, "optSolid1 optBGimage0 optBGimage+ optSolid+"},
                    record_row{"empty", [](frmMain & main) { main.design_record.bg_image = ""; },
                               "optSolid1 optBGimage0 optBGimage+ optSolid+ cmdBGcolor+"},
                    record_row{"solid", [](frmMain & main) { main.design_record.bg_image = "Solid"; },
                               "optSolid1 optSolid+ optBGimage0 optBGimage- cmdBGcolor+ picBGcolor^"},
                    record_row{"none", [](frmMain & main) { main.design_record.bg_image = "None"; },
                               "optSolid1 optSolid- optBGimage0 optBGimage- cmdBGcolor- cmdBGimage- "
                               "picBGcolor_ frmBlend_"},
                    record_row{"a_picture", [](frmMain & main) { main.design_record.bg_image = "sea.jpg"; },
                               "optSolid0 optBGimage0 optSolid- optBGimage- txtBGimage_ cmbBlend- lblBlend- "
                               "cmdBGcolor- cmdBGimage- picBGcolor- picBGcolor_"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(
    caption, new_poster_applies,
    testing::Values(record_row{"none", [](frmMain & main) { main.design_record.caption = "None"; },
                               "optTop- optBottom- txtCaption- lblFontSize- cmbSize- cmdFont- lblFont-"},
                    record_row{"top",
                               [](frmMain & main) {
                                   main.optBottom.select();
                                   main.design_record.caption = "Top";
                               },
                               "optTop1 optTop+ optBottom-"},
                    record_row{"bottom", [](frmMain & main) { main.design_record.caption = "Bottom"; },
                               "optBottom1 optBottom+ optTop-"},
                    record_row{"a_text_leaves_the_places",
                               [](frmMain & main) { main.design_record.caption = "Us"; },
                               "optTop1 optTop+ optBottom+ txtCaption+ chkClear-"},
                    record_row{"cleared",
                               [](frmMain & main) {
                                   main.design_record.caption = "Us";
                                   main.design_record.caption_clear = "Yes";
                                   main.chkClear.enable(false);
                               },
                               "chkClear+"},
                    record_row{"cleared_without_a_text",
                               [](frmMain & main) {
                                   main.design_record.caption_clear = "Yes";
                                   main.chkClear.tick(true);
                               },
                               "chkClear- chkClear0"},
                    record_row{"not_cleared",
                               [](frmMain & main) {
                                   main.txtCaption.set_text("Us");
                                   main.chkClear.tick(true);
                                   main.design_record.caption_clear = "Same";
                               },
                               "chkClear- chkClear0"},
                    record_row{"a_quick_style_may_clear",
                               [](frmMain & main) {
                                   main.txtCaption.set_text("Us");
                                   main.chkClear.enable(false);
                                   main.collage.quick_active = true;
                               },
                               "chkClear+"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(
    frame, new_poster_applies,
    testing::Values(
        record_row{"yes", [](frmMain &) {},
                   "lblFrame+ cmbFrame+ cmdFrameColor+ picFrameColor+ picFrameColor^"},
        record_row{"empty", [](frmMain & main) { main.design_record.frames = ""; },
                   "cmbFrame+ frmOrnaments^"},
        record_row{"no", [](frmMain & main) { main.design_record.frames = "No"; },
                   "lblFrame- cmbFrame- cmdFrameColor- picFrameColor- picFrameColor_"},
        record_row{"colour_only", [](frmMain & main) { main.design_record.frames = "Color"; },
                   "lblFrame- cmbFrame- cmdFrameColor+ picFrameColor+ picFrameColor^"},
        record_row{"adjust", [](frmMain & main) { main.design_record.frames = "Adjust"; }, "cmbFrame+"},
        record_row{"none", [](frmMain & main) { main.design_record.frames = "None"; }, "frmOrnaments_"},
        record_row{"a_size", [](frmMain & main) { main.design_record.frames = "15"; },
                   "lblFrame- cmbFrame- chkCaption- chkSoftEdge- chkRounded- picFrameColor- cmdFrameColor+"},
        record_row{"a_fixed_colour", [](frmMain & main) { main.design_record.frame_color = "Red"; },
                   "cmdFrameColor- picFrameColor- cmbFrame+"},
        record_row{"hidden_for_letters", [](frmMain & main) { main.lblDesign.set_caption("Lettering"); },
                   "frmOrnaments_"},
        record_row{"hidden_for_puzzles", [](frmMain & main) { main.lblDesign.set_caption("Puzzle"); },
                   "frmOrnaments_"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(
    shadow, new_poster_applies,
    testing::Values(
        record_row{"yes", [](frmMain &) {}, "lblShadow+ cmbShadow+ cmdShadowColor+ picShadowColor^"},
        record_row{"empty", [](frmMain & main) { main.design_record.shadows = ""; }, "cmbShadow+"},
        record_row{"no", [](frmMain & main) { main.design_record.shadows = "No"; },
                   "lblShadow- cmbShadow- cmdShadowColor- picShadowColor- picShadowColor_"},
        record_row{"colour_only", [](frmMain & main) { main.design_record.shadows = "Color"; },
                   "lblShadow- cmbShadow- cmdShadowColor+ picShadowColor+ picShadowColor^"},
        record_row{"a_size", [](frmMain & main) { main.design_record.shadows = "15"; },
                   "lblShadow- cmbShadow- chkCaption- chkSoftEdge- chkRounded- picShadowColor- "
                   "picShadowColor_"},
        record_row{"a_fixed_colour", [](frmMain & main) { main.design_record.shadow_color = "Green"; },
                   "cmdShadowColor- picShadowColor- cmbShadow+"}),
    row_name);

INSTANTIATE_TEST_SUITE_P(
    photo_style, new_poster_applies,
    testing::Values(
        record_row{"a_block_has_no_cards",
                   [](frmMain & main) {
                       main.chkCaption.tick(true);
                       main.design_record.design = "Block";
                   },
                   "chkCaption- chkCaption0 chkRounded+"},
        record_row{"no_soft_edges", [](frmMain & main) { main.design_record.soft_edge = "No"; },
                   "chkSoftEdge- chkRounded- chkCaption+"},
        record_row{"soft_edges",
                   [](frmMain & main) {
                       main.chkCaption.tick(true);
                       main.design_record.soft_edge = "Yes";
                   },
                   "chkSoftEdge1 chkSoftEdge+ chkRounded0 chkCaption0 chkCaption- lblFrame- lblShadow- "
                   "cmbShadow- cmbFrame- cmdShadowColor- cmdFrameColor- picShadowColor- picShadowColor_ "
                   "picFrameColor- picFrameColor_ frmHideOrnaments_"},
        record_row{"no_cards", [](frmMain & main) { main.design_record.block = "No"; },
                   "chkCaption- chkSoftEdge+"},
        record_row{"cards",
                   [](frmMain & main) {
                       main.chkSoftEdge.tick(true);
                       main.design_record.block = "Yes";
                       main.design_record.frames = "No";
                       main.cmdFrameColor.show(false);
                   },
                   "chkCaption1 chkCaption+ chkSoftEdge0 chkSoftEdge- chkRounded0 chkRounded- lblFrame- "
                   "lblShadow- cmbShadow- cmbFrame- cmdShadowColor- picShadowColor- picShadowColor_ "
                   "picFrameColor+ picFrameColor^ cmdFrameColor+ cmdFrameColor^"},
        record_row{"a_scatter_may_evolve",
                   [](frmMain & main) {
                       main.chkEvolve.show(false);
                       main.chkEvolve.tick(true);
                       main.design_record.design = "Scatter";
                   },
                   "chkEvolve^ chkEvolve1 chkRounded-"},
        record_row{"others_may_not",
                   [](frmMain & main) {
                       main.chkEvolve.tick(true);
                       main.design_record.design = "Block";
                   },
                   "chkEvolve_ chkEvolve0 chkRounded+"},
        record_row{"no_round_corners_in_a_frame_design",
                   [](frmMain & main) { main.design_record.design = "Frame"; }, "chkRounded-"},
        record_row{"no_round_corners_in_a_theme", [](frmMain & main) { main.design_record.design = "Theme"; },
                   "chkRounded-"},
        record_row{"no_round_corners_in_a_turned_matrix",
                   [](frmMain & main) { main.collage.matrix_rotate = true; }, "chkRounded-"}),
    row_name);
