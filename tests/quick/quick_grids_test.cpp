#include "quick/matrix/matrix_grid.h"
#include "quick/matrix/matrix_plan.h"
#include "quick/matrix/quick_matrix.h"
#include "quick/quick_match.h"
#include "support/files/text_file.h"
#include "tests/quick/quick_session.h"

#include <algorithm>

// ---- more and fewer

TEST(cmdMore, offers_the_grid_in_front_and_takes_it_back)
{
    quick_session session;
    session.start(4, 2);  // eight cells are wanted
    frmMain & main = session.main;
    main.optMatrix.select();
    expect_states(main, "cmdMore^ cmdMore+");
    EXPECT_EQ(main.cmdMore.caption(), "Fewer photos");
    EXPECT_TRUE(draws_anew(session, [&] { main.cmdMore.click(); }));
    EXPECT_EQ(main.cmdMore.tag, "fewer");
    EXPECT_EQ(main.cmdMore.caption(), "More photos");
    const std::size_t fewer = session.written().size();
    EXPECT_TRUE(draws_anew(session, [&] { main.cmdMore.click(); }));
    EXPECT_EQ(main.cmdMore.tag, "");
    EXPECT_EQ(main.cmdMore.caption(), "Fewer photos");
    EXPECT_LT(fewer, session.written().size());
}

TEST(cmdMore, stays_disabled_for_the_first_grid)
{
    quick_session session;
    session.start(2, 1);
    session.main.optMatrix.select();
    expect_states(session.main, "cmdMore-");
}

TEST(cmdMore, the_grid_in_front_counts_and_the_first_has_none)
{
    quick_session session;
    session.start(2, 3);
    session.main.cmdMore.tag = "fewer";
    EXPECT_EQ(find_matrix_line(session.main, 8), "6:2:3:20:20:100:100:130");
    expect_states(session.main, "cmdMore+");
    EXPECT_EQ(find_matrix_line(session.main, 4), "4:2:2:20:20:100:100:130");
    expect_states(session.main, "cmdMore-");
}

TEST(cmdMore, is_disabled_where_the_grid_in_front_shows_as_many_photos)
{
    quick_session session;
    session.desk.keeps_messages = true;
    session.start(4, 0);
    session.main.optMatrix.select();
    expect_states(session.main, "cmdMore-");
    // Six show in eight cells, five in six; in nine cells as in twelve all six.
    session.start(4, 2);
    session.main.optMatrix.select();
    expect_states(session.main, "cmdMore+");
    find_matrix_line(session.main, 12);
    expect_states(session.main, "cmdMore-");
}

namespace {

void take_photos(frmMain & main, int portrait, int landscape)
{
    main.quick.photos_portrait = narrow(portrait);
    main.quick.photos_landscape = narrow(landscape);
    main.quick.photo_shapes.clear();
    for (int i = 0; i < portrait + landscape; ++i)
        main.quick.photo_shapes +=
            i * portrait / (portrait + landscape) != (i + 1) * portrait / (portrait + landscape) ? "p:"
                                                                                                 : "l:";
}

}  // namespace

// With the grids that are supplied, for all mixes and posters: what a click would show is reckoned anew.
TEST(cmdMore, is_enabled_just_where_it_shows_fewer_photos)
{
    opened_session session;
    session.folder.write("install/quick_matrix.ini",
                         read_file(std::string(SEED_FOLDER) + "/quick_matrix.ini"));
    frmMain & main = session.main;
    int offered = 0, refused = 0;
    for (option_button * poster : {&main.optPortrait, &main.optLandscape, &main.optSquare}) {
        const updating quiet(main);
        poster->select();
        for (int photos = 3; photos < 120; photos += 1 + photos / 30)
            for (int eighths = 0; eighths <= 8; ++eighths) {
                const int landscape = photos * eighths / 8;
                take_photos(main, photos - landscape, landscape);
                const int wanted = photos + landscape;
                const auto shown_with = [&](const char * tag) {
                    main.cmdMore.tag = tag;
                    return photos_shown({.grid = matrix_grid_of(find_matrix_line(main, wanted)),
                                         .poster = selected_shape(main),
                                         .portrait = main.quick.photos_portrait,
                                         .landscape = main.quick.photos_landscape,
                                         .shapes = main.quick.photo_shapes});
                };
                const bool fewer = shown_with("fewer") < shown_with("");
                ++(fewer ? offered : refused);
                ASSERT_EQ(main.cmdMore.enabled(), fewer) << poster->name() << ", " << photos - landscape
                                                         << " portraits, " << landscape << " landscapes";
                EXPECT_EQ(main.cmdMore.caption(), "Fewer photos");
            }
    }
    EXPECT_GT(offered, 100);
    EXPECT_GT(refused, 10);
}

TEST(note, says_how_many_photos_are_left_out)
{
    quick_session session;
    session.desk.keeps_messages = true;
    session.start(4, 2);
    frmMain & main = session.main;
    const std::string source = "Using photos from   mine";
    main.optMatrix.select();
    main.chkMatch.tick(false);
    EXPECT_EQ(main.lblOutput.caption(), source);
    main.cmdMore.click();
    EXPECT_EQ(main.lblOutput.caption(), source + "   -   1 photo left out");
    main.cmdMore.click();
    EXPECT_EQ(main.lblOutput.caption(), source);
    main.cmbBlanks.set_text("3");
    EXPECT_EQ(main.lblOutput.caption(), source + "   -   2 photos left out");
    main.table.beyond = 2501;  // of a large folder
    main.cmbBlanks.set_text("2");
    EXPECT_EQ(main.lblOutput.caption(), source + "   -   2504 photos left out");
}

TEST(cmdMore, is_for_the_matrix_alone)
{
    quick_session session;
    session.start();
    session.main.optMatrix.select();
    session.main.optShapes.select();
    expect_states(session.main, "cmdMore_");
    session.main.optMatrix.select();
    session.main.optBlock.select();
    expect_states(session.main, "cmdMore_");
}

// ---- matrix

TEST(write_quick_matrix, without_portraits_an_odd_row_makes_room_for_a_smaller_grid_told_once)
{
    quick_session session;
    session.desk.keeps_messages = true;
    session.desk.will_answer(answer::no);  // two of its four rectangles hold a photo for the second time
    session.start(0, 3);
    session.desk.messages.clear();
    // Three lying photos want six cells, in rows of three; without one photo a row, four are left at least.
    session.main.optMatrix.select();
    const std::string notice =
        "There are no portraits in this group of photos.\r\n\r\nMaking a smaller matrix to match the "
        "photos...";
    EXPECT_EQ(session.desk.next_message(), notice);
    EXPECT_EQ(session.written().size(), 2U);
    EXPECT_TRUE(session.main.quick.matrix_notice_done);
    session.desk.messages.clear();
    EXPECT_TRUE(draws_anew(session, [&] { session.main.chkRotate.tick(true); }));
    EXPECT_EQ(std::count(session.desk.messages.begin(), session.desk.messages.end(), notice), 0);
}

TEST(write_quick_matrix, shakes_alike_from_one_preview_to_the_next)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    double next = 0.1;
    main.random.next = [&next] { return next; };
    main.optMatrix.select();
    main.chkRotate.tick(true);
    const auto before = session.written();
    next = 0.9;
    EXPECT_TRUE(draws_anew(session, [&] { main.optTiny.select(); }));
    EXPECT_EQ(session.written(), before);
}

TEST(write_quick_matrix, says_when_it_is_run_for_another_style)
{
    quick_session session;
    session.start();
    write_quick_matrix(session.main, session.main.random);
    EXPECT_EQ(session.desk.next_message(), "write_design not for quick matrix");
    EXPECT_EQ(session.written().size(), 5U);
}

TEST(write_quick_matrix, a_shaken_preview_is_laid_out_smaller_and_a_full_size_is_not)
{
    quick_session session;
    session.start(2, 10);
    frmMain & main = session.main;
    session.desk.keeps_messages = true;
    main.optMatrix.select();
    EXPECT_EQ(main.quick.preview_inset, 0);
    main.chkRotate.tick(true);
    EXPECT_EQ(main.quick.preview_inset, 1);  // eleven by 1.25 is 9, that and a quarter 11, an eighth of it 1
    main.chkRotate.tick(false);
    EXPECT_EQ(main.quick.preview_inset, 0);
    main.optSample.select();
    main.chkResize.tick(true);
    write_quick_matrix(main, main.random);
    EXPECT_EQ(main.quick.preview_inset, 0);
}

TEST(write_quick_matrix, a_missing_record_is_told)
{
    quick_session session;
    session.start();
    session.folder.write("data/designs.ini", "[Design001]\r\nName=Match\r\nStyle=Place\r\n");
    session.desk.keeps_messages = true;  // the record that is left has no template
    session.main.optMatrix.select();
    EXPECT_EQ(session.desk.next_message(), "Should not happen: 101 \r\nWHY CHECK FOR THIS??");
}

// ---- shapes

TEST(shapes, show_the_counts_of_their_grid)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    main.optShapes.select();
    EXPECT_EQ(main.lblRows.caption(), "03      Rows");
    EXPECT_EQ(main.lblCols.caption(), "02    Columns");
    EXPECT_TRUE(draws_anew(session, [&] { main.cmdRowUp.click(); }));
    EXPECT_EQ(main.lblRows.caption(), "04      Rows");
    EXPECT_EQ(session.written().size(), 8U);
    EXPECT_TRUE(draws_anew(session, [&] { main.cmdColDown.click(); }));
    EXPECT_EQ(main.lblCols.caption(), "01    Columns");
}

TEST(shapes, rows_end_at_one_and_the_next_click_up_counts)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    main.optShapes.select();
    for (int i = 0; i < 5; ++i)
        main.cmdRowDown.click();
    EXPECT_EQ(main.lblRows.caption(), "01      Rows");
    EXPECT_EQ(main.shape_row_bias, -2);
    main.cmdRowUp.click();
    EXPECT_EQ(main.lblRows.caption(), "02      Rows");
}

TEST(shapes, a_change_of_the_drawing_keeps_the_grid)
{
    quick_session session;
    session.start();
    session.main.optShapes.select();
    session.main.cmbShapes.choose(2);
    session.forget_written();
    session.folder.write("data/designs/__quick", "0:0:0:900:0:0:-1:0:star.gif\r\n");
    session.desk.keeps_messages = true;
    EXPECT_EQ(session.previews_of([&] { session.main.chkOutline.tick(true); }), 1);
    EXPECT_EQ(session.written().size(), 1U);
    EXPECT_EQ(session.main.chkOutline.tag, "");
}

TEST(shapes, in_landscape_the_labels_change_places)
{
    quick_session session;
    session.start();
    session.main.optShapes.select();
    session.main.optLandscape.select();
    EXPECT_EQ(session.main.lblRows.caption(), "03    Columns");
    EXPECT_EQ(session.main.lblCols.caption(), "02      Rows");
    EXPECT_EQ(session.main.optAlignTop.caption(), "Right");
    EXPECT_EQ(session.main.optAlignBottom.caption(), "Left");
    expect_states(session.main, "optPreview1");
}
