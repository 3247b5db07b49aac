#include "session/new_poster.h"

#include "session/begin_collage.h"
#include "support/platform_error.h"
#include "tests/session/opened_session.h"

TEST(new_poster, begins_a_new_collage)
{
    opened_session session;
    frmMain & main = session.main;
    main.run.cancel_requested = main.run.match_active = main.collage.frames_inside = true;
    main.table.reshuffle_choice = photo_table::reshuffle::yes;
    main.cmbSize.set_text("80");
    main.collage.borders_free = false;
    new_poster(main);
    EXPECT_FALSE(main.run.cancel_requested || main.run.match_active || main.collage.frames_inside);
    EXPECT_EQ(main.table.reshuffle_choice, photo_table::reshuffle::not_asked);
    EXPECT_EQ(main.cmbSize.text(), "80");
    EXPECT_EQ(main.cmbBlend.text(), "70");
    EXPECT_TRUE(main.collage.borders_free);
    EXPECT_TRUE(main.collage.design_matches);
    EXPECT_EQ(main.caption(), "F i n i s h i n g   t o u c h e s");
    EXPECT_EQ(main.picFrameColor.tag, "True");
}

TEST(new_poster, leaves_the_preview_to_its_caller)
{
    opened_session session;
    session.finish();
    session.main.chkSoftEdge.tick(true);
    session.main.design_record = {
        .file = "__missing", .style = "Matrix", .bg_image = "sea.jpg", .caption = "Bottom", .block = "Yes"};
    EXPECT_EQ(session.previews_of([&] { new_poster(session.main); }), 0);
}

TEST(new_poster, asks_again_for_a_picture_that_was_never_given)
{
    opened_session session;
    {
        const updating quiet(session.main);
        session.main.txtBGimage.set_text("/gone.jpg");
        session.main.optBGimage.select();
        session.main.txtBGimage.set_text("");
    }
    session.desk.will_choose_file("/sea.jpg");
    new_poster(session.main);
    EXPECT_EQ(session.main.txtBGimage.text(), "/sea.jpg");
    expect_states(session.main, "optSolid1 optBGimage0");
}

TEST(new_poster, colours_the_caption_so_that_it_can_be_read)
{
    struct row {
        std::uint32_t background, chosen, text;
    };
    for (const row & each :
         {row{0, 0, 16777215}, row{0xFFFFFF, 0, 0}, row{1, 0, 0}, row{0, 0x1234, 0x1234}}) {
        opened_session session;
        session.main.picBGcolor.set_back_color(each.background);
        session.main.caption_color = each.chosen;
        new_poster(session.main);
        EXPECT_EQ(session.main.txtCaption.back_color(), each.background);
        EXPECT_EQ(session.main.txtCaption.fore_color(), each.text);
    }
}

TEST(new_poster, any_caption_colour_means_red)
{
    opened_session session;
    session.main.design_record.caption_color = "Blue";
    new_poster(session.main);
    EXPECT_EQ(session.main.txtCaption.fore_color(), 255u);
}

TEST(new_poster, puts_the_caption_into_its_box_whatever_it_says)
{
    for (const char * caption : {"None", "Top", "Bottom", "Our summer"}) {
        opened_session session;
        session.main.design_record.caption = caption;
        new_poster(session.main);
        EXPECT_EQ(session.main.txtCaption.text(), caption);
    }
}

TEST(new_poster, a_record_without_a_caption_leaves_the_users_own)
{
    opened_session session;
    session.main.txtCaption.set_text("mine");
    new_poster(session.main);
    EXPECT_EQ(session.main.txtCaption.text(), "mine");
}

TEST(new_poster, turns_a_template_of_the_other_orientation)
{
    struct row {
        const char * background;
        bool tall;
        int turn;
    };
    for (const row & each :
         {row{"Landscape", true, -90}, row{"Landscape", false, 0}, row{"Portrait", true, 0},
          row{"Portrait", false, 90}, row{"Both", true, 0}, row{"", false, 0}}) {
        opened_session session;
        session.main.collage.landscape_turn = 45;
        session.main.poster_tall = each.tall;
        session.main.design_record.background = each.background;
        new_poster(session.main);
        EXPECT_EQ(session.main.collage.landscape_turn, each.turn) << each.background << each.tall;
    }
}

TEST(new_poster, takes_the_picture_of_a_design_from_the_program_or_from_the_user)
{
    opened_session session;
    session.main.set_back_color(0x2B2826);
    session.main.design_record.bg_image = "themes/sea.jpg";
    new_poster(session.main);
    EXPECT_EQ(session.main.txtBGimage.text(), joined(session.main.install_folder, "images/themes/sea.jpg"));
    EXPECT_TRUE(session.main.collage.bg_from_design);
    EXPECT_EQ(session.main.cmbBlend.text(), "100");
    EXPECT_EQ(session.main.picBGcolor.back_color(), 0x2B2826u);
    session.main.design_record.bg_image = "user_images\\mine.jpg";
    new_poster(session.main);
    EXPECT_EQ(session.main.txtBGimage.text(), joined(session.main.data_folder, "user_images/mine.jpg"));
}

TEST(new_poster, the_design_after_one_with_a_picture_has_a_black_swatch_again)
{
    opened_session session;
    session.main.set_back_color(0x2B2826);
    session.main.design_record.bg_image = "sea.jpg";
    new_poster(session.main);
    session.main.design_record.bg_image = "Either";
    begin_collage(session.main, collage_kind::designed);
    new_poster(session.main);
    EXPECT_FALSE(session.main.collage.bg_from_design);
    EXPECT_EQ(session.main.picBGcolor.back_color(), 0u);
    expect_states(session.main, "optSolid1 optSolid+ optBGimage+ picBGcolor^ picBGcolor+ cmbBlend+");
}

TEST(new_poster, a_frame_size_of_the_design_is_cut_into_range)
{
    opened_session session;
    session.main.design_record.frames = "75";
    new_poster(session.main);
    EXPECT_EQ(session.main.cmbFrame.text(), "60");
}

TEST(new_poster, a_shadow_size_takes_the_number_of_the_frame)
{
    opened_session session;
    session.main.design_record.frames = "10";
    session.main.design_record.shadows = "15";
    session.main.cmbShadow.set_text("30");
    new_poster(session.main);
    EXPECT_EQ(session.main.cmbShadow.text(), "10");
    session.main.design_record.frames = "Yes";
    new_poster(session.main);
    EXPECT_EQ(session.main.cmbShadow.text(), "0");
}

TEST(new_poster, settles_whether_a_frame_may_be_chosen_and_its_colour)
{
    opened_session session;
    session.main.design_record.frames = "No";
    session.main.design_record.frame_color = "Cyan";
    session.main.design_record.shadow_color = "Red";
    session.main.picShadowColor.set_back_color(7);
    new_poster(session.main);
    EXPECT_EQ(session.main.picFrameColor.tag, "False");
    EXPECT_EQ(session.main.picFrameColor.back_color(), 16776960u);
    EXPECT_EQ(session.main.picShadowColor.back_color(), 0u);
}

TEST(new_poster, adjust_moves_the_frames_inside)
{
    opened_session session;
    session.main.design_record.frames = "Adjust";
    new_poster(session.main);
    EXPECT_TRUE(session.main.collage.frames_inside);
}

TEST(new_poster, takes_the_photo_list_of_the_frame_set)
{
    struct row {
        const char * list;
        const char * file;
    };
    for (const row & each : {row{"team", "team.pls"}, row{"None", nullptr}, row{"", nullptr}}) {
        opened_session session;
        session.folder.write("data/frames/club/design.ini",
                             std::string("[Frame Design]\r\nPicture List=") + each.list + "\r\n");
        session.main.collage.frame_set_name = "club";
        session.main.txtPhotos.tag = "before";
        new_poster(session.main);
        EXPECT_EQ(session.main.txtPhotos.tag,
                  each.file == nullptr
                      ? "before"
                      : joined(session.main.data_folder, "piclists/" + std::string(each.file)));
    }
}

TEST(new_poster, a_step_that_fails_leaves_the_window_listening)
{
    opened_session session;
    session.main.collage.frame_set_name = "without its file";
    EXPECT_THROW(new_poster(session.main), platform_error);
    EXPECT_FALSE(session.main.updating_controls);
}

TEST(new_poster, twice_in_a_row_gives_the_same_window)
{
    opened_session session;
    session.main.design_record = {.style = "Place", .frames = "18", .shadows = "No"};
    const auto states = [&] {
        std::string text;
        for (const control * each : session.main.controls())
            text += each->name() + each->value() + (each->visible() ? '^' : '_') +
                    (each->enabled() ? '+' : '-') + '\n';
        return text;
    };
    new_poster(session.main);
    const std::string first = states();
    new_poster(session.main);
    EXPECT_EQ(states(), first);
}
