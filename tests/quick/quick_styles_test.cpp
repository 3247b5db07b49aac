#include "quick/matrix/quick_matrix.h"
#include "quick/quick_match.h"
#include "support/files/text_file.h"
#include "tests/quick/quick_session.h"

#include <algorithm>

namespace {

std::string sorry_number(int number)
{
    return "Can't find a collage template to match these photos.  Sorry" + std::to_string(number) + ".";
}

const char * const orientation_names[] = {"optPortrait", "optLandscape", "optSquare"};

}  // namespace

TEST(quick_styles, switch_live_and_each_writes_its_own_template)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    EXPECT_TRUE(draws_anew(session, [&] { main.optScatter.select(); }));
    EXPECT_EQ(session.written().front(), "300:300:800:600:-10:-1:-1:0:");
    EXPECT_EQ(main.quick.scatter_mode, scatter_mode::scatter);
    EXPECT_TRUE(draws_anew(session, [&] { main.optMatrix.select(); }));
    EXPECT_EQ(session.written().size(), 5U);  // two lying photos don't share a row of three
    EXPECT_EQ(main.design_record.name, "Quick matrix");
    EXPECT_TRUE(draws_anew(session, [&] { main.optShapes.select(); }));
    EXPECT_EQ(session.written().size(), 6U);
    EXPECT_EQ(main.design_record.name, "Match");
    EXPECT_TRUE(draws_anew(session, [&] { main.cmbShapes.choose(2); }));
    EXPECT_TRUE(session.written().front().ends_with(":star.gif"));
    EXPECT_TRUE(draws_anew(session, [&] { main.optBlock.select(); }));
    EXPECT_EQ(session.written().size(), 4U);
    EXPECT_EQ(main.quick.scatter_mode, scatter_mode::block);
    EXPECT_EQ(main.design_record.file, "__quick");
}

TEST(quick_styles, the_settings_of_each_reach_its_template)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    EXPECT_TRUE(draws_anew(session, [&] { main.cmbSpace.choose(0); }));
    EXPECT_EQ(session.written().front(), "-100:-100:2000:1200:0:-1:-1:0:");
    EXPECT_TRUE(draws_anew(session, [&] { main.cmbBlanks.choose(1); }));
    EXPECT_EQ(session.written().size(), 3U);
}

TEST(optBlock, fewer_than_three_photos_are_scattered_before_any_search)
{
    quick_session session;
    session.start();
    session.main.optMatrix.select();
    session.main.quick.photos_portrait = session.main.quick.photos_landscape = 1;
    session.folder.write("install/quick_block.ini", "");
    session.folder.write("install/quick_scatter.ini", "02:01:01:three\r\nSQUARES\r\n");
    EXPECT_TRUE(draws_anew(session, [&] { session.main.optBlock.select(); }));
    expect_states(session.main, "optScatter1 optBlock0 chkCaption+");
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Scatter");
}

TEST(optBlock, without_a_block_it_says_so_and_closes_the_window)
{
    quick_session session;
    session.start();
    session.main.optScatter.select();
    session.folder.write("install/quick_block.ini", "#PORT\r\n09X09:none:0:0\r\n");
    EXPECT_EQ(session.previews_of([&] { session.main.optBlock.select(); }), 0);
    EXPECT_EQ(session.desk.next_message(), "should not happen 88");
    EXPECT_EQ(session.desk.next_message(), sorry_number(1));
    EXPECT_FALSE(session.main.loaded());
    EXPECT_TRUE(session.main.trace.ends_with("(no match)"));
    expect_states(session.main, "chkCaption-");
}

TEST(optScatter, without_a_scatter_it_says_so_and_the_template_stays)
{
    quick_session session;
    session.start();
    const auto before = session.written();
    session.folder.write("install/quick_scatter.ini", "03:02:01:three\r\n");
    EXPECT_EQ(session.previews_of([&] { session.main.optScatter.select(); }), 0);
    EXPECT_EQ(session.desk.next_message(), sorry_number(4));
    EXPECT_EQ(session.written(), before);
    EXPECT_EQ(session.main.lblDesign.caption(), "Quick Scatter");
    expect_states(session.main, "chkCaption+ chkMatch1 chkRounded-");
}

TEST(orientation, finds_the_template_for_its_poster)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    EXPECT_TRUE(draws_anew(session, [&] { main.optLandscape.select(); }));
    EXPECT_EQ(main.quick.quick_along, 2);
    main.optPreview.select();
    EXPECT_TRUE(draws_anew(session, [&] { main.optSquare.select(); }));
    EXPECT_EQ(main.quick.block_name, "[square]");
    EXPECT_EQ(session.written().size(), 4U) << "three rectangles, the first of them cut";
}

TEST(orientation, photos_along_the_poster_are_the_portraits_but_for_a_landscape_one)
{
    quick_session session;
    session.start(2, 1);
    frmMain & main = session.main;
    session.desk.keeps_messages = true;
    main.optLandscape.select();
    EXPECT_EQ(main.quick.quick_along, 1);
    EXPECT_EQ(main.quick.quick_cross, 2);
    main.optSquare.select();
    EXPECT_EQ(main.quick.quick_along, 2);
    EXPECT_EQ(main.quick.quick_cross, 1);
}

TEST(orientation, without_a_template_each_says_so_by_its_number_and_the_picture_stays)
{
    const int numbers[] = {7, 6, 5};
    for (int to = 0; to < 3; ++to) {
        quick_session session;
        session.start();
        frmMain & main = session.main;
        option_button & target = *main.orientation_options[static_cast<std::size_t>(to)];
        ASSERT_EQ(target.name(), orientation_names[to]);
        if (to == 0) {
            main.optLandscape.select();
            main.optPreview.select();
        }
        main.optScatter.select();
        const auto before = session.written();
        session.folder.write("install/quick_scatter.ini", "03:02:01:three\r\nSQUARES\r\n03:02:01:three\r\n");
        EXPECT_EQ(session.previews_of([&] { target.select(); }), 0);
        EXPECT_EQ(session.desk.next_message(), sorry_number(numbers[to]));
        EXPECT_EQ(session.written(), before);
        expect_states(main, "picSample^ optPreview1");
    }
}

// ---- notices

TEST(quick_notices, fewer_slots_than_photos_are_told_once)
{
    quick_session session;
    session.start();
    quick_state & quick = session.main.quick;
    quick.photos_portrait = 95;
    quick.photos_landscape = 1;
    EXPECT_TRUE(match_quick_style(session.main));
    EXPECT_EQ(session.desk.next_message(),
              "Perfect block match not found.\r\n\r\nWe'll use a template for  89  photos.");
    EXPECT_EQ(quick.quick_along, 88);
    EXPECT_EQ(quick.quick_reduced, 2);
    EXPECT_TRUE(match_quick_style(session.main));
    EXPECT_EQ(quick.quick_reduced, 3);
}

TEST(quick_notices, no_search_is_made_while_the_window_sets_its_controls)
{
    quick_session session;
    session.start();
    session.main.quick.photos_portrait = 95;
    const updating quiet(session.main);
    EXPECT_TRUE(match_quick_style(session.main));
    EXPECT_EQ(session.main.quick.quick_along, 2);
}

TEST(quick_notices, a_scatter_that_stands_in_is_told_with_its_count)
{
    quick_session session;
    session.start();
    session.main.quick.photos_portrait = 10;
    session.main.optScatter.select();
    session.main.quick.photos_portrait = 20;
    EXPECT_EQ(session.desk.messages.size(), 0U);
    EXPECT_TRUE(match_quick_style(session.main));
    EXPECT_EQ(session.desk.next_message(),
              "Perfect scatter match not found.\r\n\r\nWe'll use a template for  12  photos.");
}

TEST(quick_notices, a_scatter_clamps_and_counts_without_a_word)
{
    quick_session session;
    session.start();
    quick_state & quick = session.main.quick;
    quick.quick_along = 70;
    quick.quick_cross = 40;
    clamp_scatter_counts(session.main);
    EXPECT_EQ(quick.quick_along, 45);
    EXPECT_EQ(quick.quick_reduced, 2);
}

// ---- borders of a scatter

TEST(write_quick_scatter, cells_turned_over_the_edge_force_a_border)
{
    struct row {
        const char * cell;
        const char * states;
        bool free;
    };
    for (const row & each :
         {row{"1:1000:1000:600:800:0", "optNone+ optNone1", true},
          row{"1:100:500:600:800:0", "optNone- optTiny- optSmall+ optSmall1", false},
          row{"1:2400:0:600:800:35", "optTiny- optSmall- optMedium+ optMedium1", false},
          row{"1:2600:0:600:800:5", "optTiny- optSmall- optMedium1", false},
          row{"1:100:1900:600:800:0", "optNone- optSmall- optMedium- optLarge+ optLarge1", false}}) {
        quick_session session;
        session.start();
        session.folder.write("install/scatter_templates", std::string("[four]\r\n") + each.cell + "\r\n");
        session.folder.write("install/quick_scatter.ini", "04:00:04:four\r\nSQUARES\r\n");
        session.main.optScatter.select();
        expect_states(session.main, each.states);
        EXPECT_EQ(session.main.collage.borders_free, each.free) << each.cell;
        EXPECT_FALSE(session.main.updating_controls);
    }
}

TEST(write_quick_scatter, a_wider_border_of_the_users_stays)
{
    quick_session session;
    session.start();
    session.folder.write("install/scatter_templates", "[four]\r\n1:100:500:600:800:0\r\n");
    session.folder.write("install/quick_scatter.ini", "04:00:04:four\r\nSQUARES\r\n");
    session.main.optScatter.select();
    session.main.optHuge.select();
    expect_states(session.main, "optHuge1 optSmall0 optNone- optTiny-");
}

// ---- preview on and off

TEST(preview_off, no_change_redraws_until_it_is_turned_on_again)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    main.optSample.select();
    session.forget_written();
    EXPECT_EQ(session.previews_of([&] {
        main.optScatter.select();
        main.optMatrix.select();
        main.chkRotate.tick(true);
        main.cmdMore.click();
        main.optBlock.select();
        main.cmbSpace.choose(3);
        main.cmbBlanks.choose(2);
        main.optTiny.select();
        main.optLandscape.select();
    }),
              0);
    EXPECT_TRUE(session.written().empty());
    EXPECT_TRUE(draws_anew(session, [&] { main.optPreview.select(); }));
}

TEST(preview_off, shows_the_ready_made_picture_of_the_style)
{
    quick_session session;
    session.start();
    const std::string ready = session.folder.write("install/images/preview/p_sb.jpg", "a picture");
    EXPECT_EQ(session.previews_of([&] { session.main.optSample.select(); }), 1);
    EXPECT_EQ(session.main.picSample.file(), ready);
}

TEST(preview_off, shapes_have_no_ready_made_picture)
{
    quick_session session;
    session.start();
    session.main.optShapes.select();
    session.folder.write("install/images/preview/p_o.jpg", "a picture");
    EXPECT_EQ(session.previews_of([&] { session.main.optSample.select(); }), 0);
}

TEST(preview_off, shapes_turn_it_on)
{
    quick_session session;
    session.start();
    session.main.optSample.select();
    EXPECT_TRUE(draws_anew(session, [&] { session.main.optShapes.select(); }));
    expect_states(session.main, "optPreview1");
}

TEST(orientation, draws_the_picture_once_and_leaves_the_preview_as_it_was)
{
    for (const bool on : {true, false}) {
        quick_session session;
        session.start();
        frmMain & main = session.main;
        session.folder.write("install/images/preview/l_sb.jpg", "a picture");
        if (!on)
            main.optSample.select();
        main.chkRandom.tick(true);
        EXPECT_EQ(session.previews_of([&] { main.optLandscape.select(); }), on ? 1 : 0);
        expect_states(main, on ? "optPreview1 optSample0 chkRandom1" : "optPreview0 optSample1 chkRandom1");
        EXPECT_EQ(session.previews_of([&] { main.chkMatch.tick(false); }), on ? 1 : 0);
    }
}

// ---- full size

TEST(quick_full_size, every_style_is_made_and_every_poster)
{
    struct row {
        option_button frmMain::*style, frmMain::*orientation;
        int width, height;
    };
    for (const row & each : {row{&frmMain::optBlock, &frmMain::optLandscape, 3000, 2000},
                             row{&frmMain::optScatter, &frmMain::optSquare, 2000, 2000},
                             row{&frmMain::optMatrix, &frmMain::optLandscape, 3000, 2000},
                             row{&frmMain::optShapes, &frmMain::optPortrait, 2000, 3000}}) {
        quick_session session;
        session.start();
        (session.main.*each.orientation).select();
        session.main.optPreview.select();
        (session.main.*each.style).select();
        picture_size size{};
        session.desk.on_modal<frmImage>([&](frmImage &) {
            size = {.width = session.main.run.canvas.width(), .height = session.main.run.canvas.height()};
        });
        session.main.cmdFlurn.click();
        EXPECT_EQ(size.width, each.width);
        EXPECT_EQ(size.height, each.height);
        EXPECT_TRUE(session.main.collage.quick_active);
        expect_states(session.main, "optPreview1 frmStyle+");
    }
}

TEST(quick_full_size, shapes_are_drawn_as_the_preview_laid_them_out)
{
    quick_session session;
    session.start();
    session.main.optShapes.select();
    session.folder.write("data/designs/__quick", "0:0:900:900:0:0:-1:0:\r\n");
    session.desk.on_modal<frmImage>([](frmImage &) {});
    session.main.cmdFlurn.click();
    EXPECT_EQ(session.written().size(), 1U);
}
