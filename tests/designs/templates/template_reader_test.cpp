#include "designs/templates/template_reader.h"

#include "support/platform_error.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

struct template_test : testing::Test {
    temporary_folder data, program;
    scripted_desktop desk;
    frmMain main{desk, listed({0.5})};

    template_test()
    {
        main.data_folder = data.path();
        main.install_folder = program.path();
        main.design_record.file = "__quick";
        main.design_record.style = "Place";
    }
    void read(std::string_view text, run_size size = run_size::full)
    {
        data.write("designs/__quick", text);
        read_template(main, size);
    }
    const location & at(int index) const { return main.design_locations[index]; }
    int count() const { return main.design_locations.count; }
};

std::string lines(int count, const std::string & line)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line + "\r\n";
    return text;
}

const location blank{.frame = 0, .shadow = 0};

}  // namespace

TEST_F(template_test, reads_one_location_a_line)
{
    read("100:200:300:400:0:-1:-1:0:\r\n10:20:30:40:5:0:0:0:images/a.jpg\r\n");
    ASSERT_EQ(count(), 2);
    EXPECT_EQ(at(0), (location{.top = 100, .left = 200, .height = 300, .width = 400}));
    EXPECT_EQ(at(1), (location{.top = 10,
                               .left = 20,
                               .height = 30,
                               .width = 40,
                               .rotation = 5,
                               .frame = 0,
                               .shadow = 0,
                               .file = "images/a.jpg"}));
    EXPECT_EQ(at(2), blank);
}

TEST_F(template_test, reads_line_feeds_and_a_last_line_without_an_end)
{
    read("1:2:300:400:0:-1:-1:0:\n3:4:300:400:0:-1:-1:0:");
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(at(1).top, 3);
}

TEST_F(template_test, leaves_a_blank_record_behind_the_last_location)
{
    read(lines(5, "1:2:300:400:0:-1:-1:0:x"));
    read("1:2:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(at(1), blank);
    EXPECT_EQ(at(4), blank);
}

TEST_F(template_test, a_comment_between_two_locations_changes_nothing)
{
    read("1:2:300:400:0:-1:-1:0:\r\n# one: two\r\n3:4:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(at(1).top, 3);
}

TEST_F(template_test, ends_at_a_bracket_and_at_an_empty_fifth_field)
{
    read("1:2:300:400:0:-1:-1:0:\r\n[next]\r\n3:4:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(count(), 1);
    read("1:2:300:400:0:-1:-1:0:\r\n3:4:300:400::-1:-1:0:\r\n5:6:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(count(), 1);
}

TEST_F(template_test, looks_at_1001_lines_comments_included)
{
    read(lines(1100, "1:2:300:400:0:-1:-1:0:"));
    EXPECT_EQ(count(), 1001);
    EXPECT_EQ(at(1001), blank);
    read(lines(100, "# comment") + lines(1000, "1:2:300:400:0:-1:-1:0:"));
    EXPECT_EQ(count(), 901);
}

TEST_F(template_test, the_margin_is_seven_tenths_of_the_smallest_side)
{
    read("1:2:300:40:0:-1:-1:0:\r\n1:2:60:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(main.min_location, 40);
    EXPECT_EQ(main.run.collage_margin, 28);
    read("1:2:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(main.min_location, 100);
    EXPECT_EQ(main.run.collage_margin, 70);
    read("1:2:15:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(main.run.collage_margin, 10);  // 10.5
    read("1:2:5:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(main.run.collage_margin, 4);  // 3.5
}

TEST_F(template_test, soft_edges_enlarge_the_location_and_not_the_margin)
{
    main.chkSoftEdge.tick(true);
    read("100:100:200:90:0:-1:-1:0:\r\n");
    EXPECT_EQ(at(0), (location{.top = 80, .left = 80, .height = 240, .width = 130}));
    EXPECT_EQ(main.min_location, 90);
}

TEST_F(template_test, soft_edges_leave_grids_and_designs_without_ornaments)
{
    main.chkSoftEdge.tick(true);
    main.design_record.style = "Fill";
    read("100:100:200:200:0:-1:-1:0:\r\n");
    EXPECT_EQ(at(0).top, 100);
    main.design_record.style = "Matrix";
    read("100:100:200:200:0:-1:-1:0:\r\n");
    EXPECT_EQ(at(0).top, 100);
    main.design_record.style = "Place";
    main.frmOrnaments.show(false);
    read("100:100:200:200:0:-1:-1:0:\r\n");
    EXPECT_EQ(at(0).top, 100);
}

TEST_F(template_test, a_matrix_runs_as_fill_and_its_first_line_holds_three_switches)
{
    main.design_record.style = "Matrix";
    read("0:0:3:4:1:1:1:0:\r\n5:5:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(main.work_style, "Fill");
    EXPECT_TRUE(main.collage.matrix_both && main.collage.matrix_rotate && main.collage.matrix_resize);
    read("0:0:3:4:0:-1:2:0:\r\n5:5:300:400:1:1:1:0:\r\n");
    EXPECT_FALSE(main.collage.matrix_both);
    EXPECT_TRUE(main.collage.matrix_rotate && main.collage.matrix_resize);  // only a new design resets these
}

TEST_F(template_test, other_styles_have_no_switches)
{
    main.collage.matrix_both = true;
    read("0:0:3:4:1:1:1:0:\r\n");
    EXPECT_EQ(main.work_style, "Place");
    EXPECT_FALSE(main.collage.matrix_both || main.collage.matrix_rotate || main.collage.matrix_resize);
}

TEST_F(template_test, the_matrix_has_one_file_for_each_size)
{
    data.write("designs/__matrix", "1:0:300:400:0:-1:-1:0:\r\n");
    data.write("designs/__matrix_", "2:0:300:400:0:-1:-1:0:\r\n");
    main.design_record.file = "__matrix";
    read_template(main, run_size::preview);
    EXPECT_EQ(at(0).top, 1);
    read_template(main, run_size::full);
    EXPECT_EQ(at(0).top, 2);
}

TEST_F(template_test, work_files_users_designs_and_frame_designs_lie_in_the_data_folder)
{
    for (const char * file : {"__lettering", "__puzzle", "__quick"}) {
        data.write(std::string("designs/") + file, "7:0:300:400:0:-1:-1:0:\r\n");
        main.design_record = {.file = file, .style = "Place"};
        read_template(main, run_size::full);
        EXPECT_EQ(at(0).top, 7) << file;
    }
    data.write("designs/saved600", "8:0:300:400:0:-1:-1:0:\r\n");
    main.design_record = {.file = "saved600", .style = "Place", .system = "No"};
    read_template(main, run_size::full);
    EXPECT_EQ(at(0).top, 8);
    data.write("designs/__frames", "9:0:300:400:0:-1:-1:0:\r\n");
    main.design_record = {.file = "__frames", .style = "Place", .design = "Frame"};
    read_template(main, run_size::full);
    EXPECT_EQ(at(0).top, 9);
}

TEST_F(template_test, a_supplied_design_is_a_section_of_the_list)
{
    program.write("design_list",
                  "[one]\r\n1:0:300:400:0:-1:-1:0:\r\n[two]\r\n2:0:300:400:0:-1:-1:0:\r\n"
                  "3:0:300:400:0:-1:-1:0:\r\n[three]\r\n");
    main.design_record.file = "two";
    read_template(main, run_size::full);
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(at(0).top, 2);
    EXPECT_EQ(at(1).top, 3);
}

TEST_F(template_test, a_design_that_is_not_in_the_list_has_no_locations_and_no_message)
{
    read("1:2:300:400:0:-1:-1:0:\r\n");
    program.write("design_list", "[one]\r\n1:0:300:400:0:-1:-1:0:\r\n");
    for (const char * file : {"two", "One", "on", ""}) {
        main.design_record.file = file;
        read_template(main, run_size::full);
        EXPECT_EQ(count(), 0) << file;
    }
    EXPECT_EQ(main.run.collage_margin, 70);
}

TEST_F(template_test, a_missing_file_is_told_in_one_box)
{
    main.trace = " 987 ";
    read_template(main, run_size::full);
    EXPECT_EQ(desk.next_message(), " XXY  987 YY CAUGHT AN ERROR 53\nThe file or folder does not exist.\n" +
                                       data.at("designs/__quick"));
}

TEST_F(template_test, a_line_of_four_fields_is_told_and_what_was_read_stays)
{
    read("1:2:50:400:0:-1:-1:0:\r\n3:4:5:6\r\n7:8:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(desk.next_message(), " XXY YY CAUGHT AN ERROR 9\nA line has too few fields.");
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(main.min_location, 50);
}

TEST_F(template_test, a_blank_line_is_told_too)
{
    read("1:2:300:400:0:-1:-1:0:\r\n\r\n");
    EXPECT_EQ(desk.next_message(), " XXY YY CAUGHT AN ERROR 9\nA line has too few fields.");
}

TEST_F(template_test, a_number_beyond_16_bits_is_told)
{
    read("1:2:300:400:0:-1:-1:0:\r\n40000:2:300:400:0:-1:-1:0:\r\n");
    EXPECT_EQ(desk.next_message(), " XXY YY CAUGHT AN ERROR 6\nA number is out of range.");
    EXPECT_EQ(count(), 1);
}

TEST_F(template_test, whatever_the_bytes_are_it_ends_with_at_most_one_box)
{
    const random_source random = seeded_random(11);
    const std::string signs = "0123456789:::::::-.eE&H#[]\r\n\n\n \xFF";
    desk.keeps_messages = true;
    for (int round = 0; round < 80; ++round) {
        std::string text;
        for (int i = whole(random.next() * 200); i >= 0; --i)
            text += signs[static_cast<std::size_t>(random.next() * static_cast<double>(signs.size()))];
        desk.messages.clear();
        read("1:2:300:400:0:-1:-1:0:\r\n" + text);
        EXPECT_LE(desk.messages.size(), 1u) << text;
        EXPECT_GE(count(), 1) << text;
        EXPECT_EQ(at(count()), blank) << text;
    }
}

TEST_F(template_test, letters_are_mixed_from_eight_on)
{
    std::string text;
    for (int i = 1; i <= 8; ++i)
        text += std::to_string(i) + ":0:300:400:0:0:-1:0:alpha/char_a.gif\r\n";
    main.lblDesign.set_caption("Lettering");
    read(text);
    EXPECT_EQ(main.mix_step, 3);
    EXPECT_EQ(at(0).top, 8);
    EXPECT_EQ(count(), 8);
}

TEST_F(template_test, seven_letters_and_other_designs_keep_their_order)
{
    main.lblDesign.set_caption("Lettering");
    read(lines(7, "1:0:300:400:0:0:-1:0:"));
    main.lblDesign.set_caption("Puzzle");
    read(lines(20, "1:0:300:400:0:0:-1:0:"));
    EXPECT_EQ(main.mix_step, -1);
}

TEST_F(template_test, turning_takes_every_location_of_a_list_of_places)
{
    read("100:200:300:400:0:-1:-1:0:\r\n0:0:200:100:0:-1:-1:0:a\r\n");
    turn_locations(main);
    EXPECT_EQ(at(0), (location{.top = 200, .left = 2600, .height = 400, .width = 300}));
    EXPECT_EQ(at(1), (location{.top = 0, .left = 2800, .height = 100, .width = 200, .file = "a"}));
    EXPECT_EQ(count(), 2);
}

TEST_F(template_test, turning_takes_the_record_behind_the_last_location_along)
{
    read("100:200:300:400:0:-1:-1:0:\r\n");
    turn_locations(main);
    EXPECT_EQ(at(1).left, 3000);
    EXPECT_EQ(at(2).left, 0);
}

TEST_F(template_test, turning_takes_only_the_odd_rows_of_a_grid)
{
    main.design_record.style = "Fill";
    read("10:20:3:4:0:-1:-1:0:\r\n5:6:300:400:0:-1:-1:0:\r\n30:40:3:4:0:-1:-1:0:\r\n");
    turn_locations(main);
    EXPECT_EQ(at(0).top, 10);
    EXPECT_EQ(at(1), (location{.top = 6, .left = 2695, .height = 400, .width = 300}));
    EXPECT_EQ(at(2).top, 30);
    EXPECT_EQ(at(3).left, 3000);
}

TEST_F(template_test, in_a_preview_the_turning_edge_is_435)
{
    read("10:20:30:40:0:-1:-1:0:\r\n");
    main.in_preview = true;
    turn_locations(main);
    EXPECT_EQ(at(0).left, 395);
}

TEST_F(template_test, a_landscape_template_turned_upright_stays_on_the_poster)
{
    main.collage.landscape_turn = -90;
    read("0:0:2000:3000:0:-1:-1:0:\r\n");
    turn_locations(main);
    EXPECT_EQ(at(0), (location{.top = 0, .left = 0, .height = 3000, .width = 2000}));
    main.in_preview = true;
    read("0:0:290:435:0:-1:-1:0:\r\n");
    turn_locations(main);
    EXPECT_EQ(at(0), (location{.top = 0, .left = 0, .height = 435, .width = 290}));
}

TEST_F(template_test, a_full_template_can_be_turned)
{
    read(lines(1001, "1:2:300:400:0:-1:-1:0:"));
    turn_locations(main);
    EXPECT_EQ(at(1000).top, 2);
    EXPECT_EQ(at(1001).left, 3000);
}

TEST_F(template_test, turning_raises_an_overflow)
{
    read("1:2:3000:400:15:-1:-1:0:\r\n");
    EXPECT_THROW(turn_locations(main), platform_error);
}

TEST_F(template_test, stretching_takes_all_four_measures_of_a_list_of_places)
{
    main.poster_tall = true;
    read("100:100:3000:2000:0:-1:-1:0:\r\n");
    stretch_locations(main);
    EXPECT_EQ(at(0), (location{.top = 93, .left = 105, .height = 2799, .width = 2100}));
    EXPECT_EQ(at(1), blank);
    main.poster_tall = false;
    read("100:100:2000:3000:0:-1:-1:0:\r\n");
    stretch_locations(main);
    EXPECT_EQ(at(0), (location{.top = 105, .left = 93, .height = 2100, .width = 2799}));
}

TEST_F(template_test, stretching_a_matrix_leaves_its_counts_and_all_but_two_rows)
{
    main.poster_tall = true;
    main.design_record.style = "Matrix";
    read("100:100:70:50:0:-1:-1:0:\r\n100:100:300:200:0:-1:-1:0:\r\n100:100:300:200:0:-1:-1:0:\r\n");
    stretch_locations(main);
    EXPECT_EQ(at(0), (location{.top = 93, .left = 105, .height = 70, .width = 50}));
    EXPECT_EQ(at(1), (location{.top = 93, .left = 105, .height = 280, .width = 210}));
    EXPECT_EQ(at(2).top, 100);
}
