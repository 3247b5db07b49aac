#include "engine/layout/surroundings.h"

#include "support/files/paths.h"
#include "tests/engine/collage_fixture.h"
#include "tests/engine/layout/measures.h"
#include "tests/pictures.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

constexpr rgb_triple caption_ink{.red = 255};
constexpr std::uint32_t ink_in_control = 0x0000FF;

struct one_location : collage_fixture {
    one_location() { add_location(measures(1000, 1000, 1000, 1000)); }
    const location & place() const { return all.main.design_locations[0]; }
};

struct cleared_caption : one_location {
    cleared_caption()
    {
        main.txtCaption.set_text("Sea");
        main.chkClear.tick(true);
        main.optBottom.select();
    }
    location with_room()
    {
        make_caption_room(main);
        return place();
    }
};

// A canvas of 400 by 300 with a bleed of 20 and a caption of one letter: 78 wide, 40 high, the letter a bar
// of 24 by 32 at its left, 4 rows from its top.
struct short_caption : collage_fixture {
    short_caption()
    {
        use_canvas(400, 300);
        main.run.collage_margin = 20;
        main.txtCaption.set_text("I");
        main.txtCaption.tag = "30";
        main.txtCaption.set_fore_color(ink_in_control);
    }
    // Left, top, right and bottom of what was printed, from the top; empty when nothing was.
    std::string printed()
    {
        add_caption(main);
        const bitmap & canvas = main.run.canvas;
        int left = canvas.width(), top = canvas.height(), right = -1, bottom = -1;
        for (int y = 0; y < canvas.height(); ++y)
            for (int x = 0; x < canvas.width(); ++x)
                if (seen(canvas, x, y) == caption_ink) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                }
        if (right < 0)
            return "";
        return std::to_string(left) + "," + std::to_string(top) + " to " + std::to_string(right) + "," +
               std::to_string(bottom);
    }
};

}  // namespace

TEST(apply_border, takes_the_border_that_is_selected)
{
    one_location run;
    run.main.optHuge.select();
    apply_border(run.main, run_size::full);
    EXPECT_EQ(run.place(), measures(1100, 1000, 800, 700));
}

TEST(apply_border, scatter_designs_and_the_quick_scatter_keep_more)
{
    one_location design, quick;
    design.main.design_record.design = "Scatter";
    quick.main.optScatter.select();
    for (one_location * run : {&design, &quick}) {
        run->main.optHuge.select();
        apply_border(run->main, run_size::full);
        EXPECT_EQ(run->place().width, 800);
    }
}

TEST(apply_border, a_square_output_has_its_own_row)
{
    one_location run;
    run.main.optSquare.select();
    run.main.optTiny.select();
    apply_border(run.main, run_size::full);
    EXPECT_EQ(run.place(), measures(995, 1000, 900, 900));
}

TEST(make_caption_room, does_nothing_without_a_cleared_caption_a_mirror_or_a_flip)
{
    one_location run;
    run.main.txtCaption.set_text("Sea");
    make_caption_room(run.main);
    run.main.txtCaption.set_text("");
    run.main.chkClear.tick(true);
    make_caption_room(run.main);
    EXPECT_EQ(run.place(), measures(1000, 1000, 1000, 1000));
}

TEST(make_caption_room, upright_designs_free_the_strip_at_top_or_bottom)
{
    EXPECT_EQ(cleared_caption().with_room(), measures(900, 1000, 920, 950));
    cleared_caption top;
    top.main.optTop.select();
    EXPECT_EQ(top.with_room(), measures(1250, 1000, 920, 950));
}

TEST(make_caption_room, block_designs_and_quick_templates_shrink_more)
{
    cleared_caption block, quick;
    block.main.design_record.design = "Block";
    quick.main.design_record.file = "__quick";
    EXPECT_EQ(block.with_room().height, 850);
    EXPECT_EQ(quick.with_room().height, 850);
}

TEST(make_caption_room, designs_that_are_turned_afterwards_free_it_at_the_side)
{
    cleared_caption by_turn, by_output;
    by_turn.main.collage.landscape_turn = 90;
    by_output.main.optLandscape.select();
    by_output.main.design_record.background = "Portrait";
    EXPECT_EQ(by_turn.with_room(), measures(1040, 850, 920, 880));
    EXPECT_EQ(by_output.with_room(), measures(1040, 850, 920, 880));
}

TEST(make_caption_room, tied_borders_free_it_at_the_side_too_but_not_for_letters_pieces_and_squares)
{
    cleared_caption tied, letters, pieces, square;
    for (cleared_caption * run : {&tied, &letters, &pieces, &square})
        run->main.collage.borders_free = false;
    letters.main.design_record.file = "__lettering";
    pieces.main.design_record.file = "__puzzle";
    square.main.optSquare.select();
    EXPECT_EQ(tied.with_room(), measures(1040, 850, 920, 880));
    EXPECT_EQ(letters.with_room(), measures(900, 1000, 920, 950));
    EXPECT_EQ(pieces.with_room(), measures(900, 1000, 920, 950));
    EXPECT_EQ(square.with_room(), measures(900, 1000, 920, 950));
}

TEST(make_caption_room, the_counts_of_a_grid_stay)
{
    cleared_caption run;
    run.main.work_style = "Fill";
    run.main.design_locations[0] = measures(100, 100, 5, 4);
    run.add_location(measures(20, 40, 400, 300));
    make_caption_room(run.main);
    EXPECT_EQ(run.main.design_locations[0], measures(135, 145, 5, 4));
    EXPECT_EQ(run.main.design_locations[1], measures(17, 38, 368, 285));
}

TEST(make_caption_room, mirrors_and_flips_about_the_poster)
{
    collage_fixture run;
    run.main.collage.design_mirrored = run.main.collage.design_flipped = true;
    run.add_location(measures(100, 100, 700, 500));
    make_caption_room(run.main);
    EXPECT_EQ(run.main.design_locations[0], measures(2200, 1400, 700, 500));
}

TEST(make_caption_room, mirrors_and_flips_a_preview_about_its_own_size)
{
    collage_fixture run;
    run.main.in_preview = run.main.collage.design_mirrored = run.main.collage.design_flipped = true;
    run.add_location(measures(10, 10, 70, 50));
    make_caption_room(run.main);
    EXPECT_EQ(run.main.design_locations[0], measures(370, 240, 70, 50));
}

TEST(make_caption_room, a_design_drawn_for_a_lying_poster_is_mirrored_about_that)
{
    collage_fixture run;
    run.main.collage.design_mirrored = run.main.collage.design_flipped = true;
    run.main.optLandscape.select();
    run.main.design_record.background = "Landscape";
    run.add_location(measures(100, 100, 700, 500));
    make_caption_room(run.main);
    EXPECT_EQ(run.main.design_locations[0], measures(1200, 2400, 700, 500));
}

TEST(make_caption_room, a_grid_is_its_own_mirror_image)
{
    collage_fixture run;
    run.main.work_style = "Fill";
    run.main.collage.design_mirrored = run.main.collage.design_flipped = true;
    run.add_location(measures(100, 100, 5, 4));
    run.add_location(measures(20, 40, 400, 300));
    make_caption_room(run.main);
    EXPECT_EQ(run.main.design_locations[0], measures(100, 100, 5, 4));
    EXPECT_EQ(run.main.design_locations[1], measures(20, 40, 400, 300));
}

TEST(prepare_caption, measures_what_will_be_printed)
{
    short_caption run;
    prepare_caption(run.main);
    EXPECT_EQ(run.main.run.caption_height, 40);
    run.main.txtCaption.set_text("");
    prepare_caption(run.main);
    EXPECT_EQ(run.main.run.caption_height, 0);
}

TEST(caption, is_drawn_in_the_font_of_its_box_at_the_size_of_its_tag)
{
    short_caption run;
    run.main.txtCaption.set_font({.name = "Serif", .size = 11, .bold = true});
    prepare_caption(run.main);
    const text_request & asked = run.desk.drawn_texts.back();
    EXPECT_EQ(asked.text, "I");
    EXPECT_EQ(asked.font, (font_style{.name = "Serif", .size = 30, .bold = true}));
    EXPECT_EQ(asked.color, caption_ink);
    EXPECT_EQ(asked.extra_width, 50);
    run.main.in_preview = true;
    prepare_caption(run.main);
    EXPECT_DOUBLE_EQ(run.desk.drawn_texts.back().font.size, 5);
}

TEST(caption, has_a_white_ground_below_six_million_and_a_black_one_from_there_on)
{
    short_caption run;
    run.main.txtCaption.set_fore_color(5'999'999);
    prepare_caption(run.main);
    EXPECT_EQ(run.desk.drawn_texts.back().background, (rgb_triple{.red = 255, .green = 255, .blue = 255}));
    run.main.txtCaption.set_fore_color(6'000'000);
    prepare_caption(run.main);
    EXPECT_EQ(run.desk.drawn_texts.back().background, rgb_triple{});
}

TEST(caption, stands_in_the_middle_75_rows_below_the_top)
{
    EXPECT_EQ(short_caption().printed(), "161,99 to 184,130");
}

TEST(caption, stands_on_80_rows_at_the_bottom_of_a_portrait_60_of_a_landscape_50_of_a_square)
{
    short_caption portrait, landscape, square;
    for (short_caption * run : {&portrait, &landscape, &square})
        run->main.optBottom.select();
    landscape.main.optLandscape.select();
    square.main.optSquare.select();
    EXPECT_EQ(portrait.printed(), "161,164 to 184,195");
    EXPECT_EQ(landscape.printed(), "161,184 to 184,215");
    EXPECT_EQ(square.printed(), "161,194 to 184,225");
}

TEST(caption, keeps_off_the_border)
{
    short_caption tiny, cleared, hidden;
    for (short_caption * run : {&tiny, &cleared, &hidden})
        run->main.optTiny.select();
    cleared.main.chkClear.tick(true);
    hidden.main.optTiny.show(false);
    EXPECT_EQ(tiny.printed(), "161,199 to 184,230");
    EXPECT_EQ(cleared.printed(), "161,189 to 184,220");
    EXPECT_EQ(hidden.printed(), "161,99 to 184,130");
}

TEST(caption, each_border_has_its_room)
{
    const auto top_with = [](option_button frmMain::*border) {
        short_caption run;
        run.use_canvas(400, 900);
        run.main.run.collage_margin = 20;
        (run.main.*border).select();
        return run.printed();
    };
    EXPECT_EQ(top_with(&frmMain::optSmall), "161,249 to 184,280");
    EXPECT_EQ(top_with(&frmMain::optMedium), "161,299 to 184,330");
    EXPECT_EQ(top_with(&frmMain::optLarge), "161,349 to 184,380");
    EXPECT_EQ(top_with(&frmMain::optHuge), "161,399 to 184,430");
}

TEST(caption, stands_higher_and_further_right_in_a_preview)
{
    short_caption run;
    run.main.in_preview = true;
    run.main.txtCaption.tag = "180";  // a sixth is 30
    EXPECT_EQ(run.printed(), "171,34 to 194,65");
    short_caption bordered;
    bordered.main.in_preview = true;
    bordered.main.txtCaption.tag = "180";
    bordered.main.optTiny.select();
    EXPECT_EQ(bordered.printed(), "171,48 to 194,79");  // 100 / 7
}

TEST(caption, of_blanks_prints_nothing)
{
    short_caption run;
    run.main.txtCaption.set_text("   ");
    EXPECT_EQ(run.printed(), "");
}

TEST(caption, is_left_in_the_work_folder)
{
    short_caption run;
    run.printed();
    EXPECT_EQ(load_picture(picture_format::bmp, joined(run.main.data_folder, "tmp/caption.bmp")).width(), 78);
}

TEST(caption, is_left_out_without_the_work_folder)
{
    short_caption run;
    std::filesystem::remove_all(joined(run.main.data_folder, "tmp"));
    EXPECT_EQ(run.printed(), "");
}

TEST(caption, without_a_size_is_not_drawn)
{
    short_caption run;
    run.main.txtCaption.tag = "";
    EXPECT_EQ(run.printed(), "");
    EXPECT_TRUE(run.desk.drawn_texts.empty());
}
