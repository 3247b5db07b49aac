#include "session/collage.h"

#include "session/begin_collage.h"
#include "session/new_poster.h"
#include "tests/session/opened_session.h"

namespace {

// The controls that designs and styles force, as the user has set them.
struct users_settings : testing::Test, opened_session {
    users_settings()
    {
        const updating quiet(main);
        main.cmbFrame.set_text("7");
        main.cmbShadow.set_text("25");
        main.cmbBlend.set_text("40");
        main.txtCaption.set_text("Anna");
        main.txtBGimage.set_text("/mine.jpg");
        main.picBGcolor.set_back_color(0xAA0000);
        main.picFrameColor.set_back_color(0x123456);
        main.picShadowColor.set_back_color(0x654321);
        main.chkRounded.tick(true);
        main.optLarge.select();
        main.optBottom.select();
    }
    // A collage by the design record as it stands.
    void make_poster()
    {
        begin_collage(main, collage_kind::designed);
        new_poster(main);
    }
    void make_plain_poster()
    {
        main.design_record = {};
        make_poster();
    }
};

using forced_settings_test = users_settings;

}  // namespace

TEST_F(users_settings, come_back_with_the_next_collage)
{
    main.design_record.frames = "45";
    main.design_record.shadows = "15";
    main.design_record.frame_color = "Red";
    main.design_record.shadow_color = "Black";
    main.design_record.caption = "Top";
    main.design_record.bg_image = "sea.jpg";
    main.design_record.style = "Matrix";
    main.design_record.soft_edge = "Yes";
    make_poster();
    EXPECT_EQ(main.cmbFrame.text() + main.cmbShadow.text() + main.cmbBlend.text(), "4545100");
    EXPECT_EQ(main.txtCaption.text(), "Top");
    expect_states(main, "optNone1 optTop1 chkSoftEdge1 chkRounded0");
    make_plain_poster();
    EXPECT_EQ(main.cmbFrame.text(), "7");
    EXPECT_EQ(main.cmbShadow.text(), "25");
    EXPECT_EQ(main.cmbBlend.text(), "40");
    EXPECT_EQ(main.txtCaption.text(), "Anna");
    EXPECT_EQ(main.txtBGimage.text(), "/mine.jpg");
    EXPECT_EQ(main.picBGcolor.back_color(), 0xAA0000U);
    EXPECT_EQ(main.picFrameColor.back_color(), 0x123456U);
    EXPECT_EQ(main.picShadowColor.back_color(), 0x654321U);
    expect_states(main, "optLarge1 optBottom1 chkSoftEdge0 chkRounded1");
}

TEST_F(users_settings, that_the_user_changed_meanwhile_stay_so)
{
    main.design_record.frames = "45";
    main.design_record.caption = "Best wishes";
    main.design_record.style = "Matrix";
    main.design_record.block = "Yes";
    make_poster();
    {
        const updating quiet(main);
        main.cmbFrame.set_text("30");
        main.txtCaption.set_text("Best wishes, Anna");
        main.optHuge.select();
        main.chkCaption.tick(false);
    }
    make_plain_poster();
    EXPECT_EQ(main.cmbFrame.text(), "30");
    EXPECT_EQ(main.txtCaption.text(), "Best wishes, Anna");
    expect_states(main, "optHuge1 chkCaption0");
}

TEST_F(users_settings, give_the_caption_letters_that_can_be_read_after_a_design_with_a_ground_of_its_own)
{
    main.set_back_color(0x2B2826);
    main.picBGcolor.set_back_color(0);
    main.design_record.bg_image = "sea.jpg";
    make_poster();
    make_plain_poster();
    EXPECT_EQ(main.txtCaption.back_color(), 0U);
    EXPECT_EQ(main.txtCaption.fore_color(), 0xFFFFFFU);
}

TEST_F(users_settings, keep_the_caption_clear_after_a_matrix_that_was_cancelled)
{
    begin_collage(main, collage_kind::matrix);
    main.collage.matrix_session = true;
    begin_collage(main, collage_kind::quick);
    main.txtCaption.set_text("");
    main.chkClear.enable(false);
    main.txtCaption.set_text("Anna");
    expect_states(main, "chkClear+");
}

TEST_F(users_settings, are_free_of_the_borders_of_a_scatter_with_the_next_style_and_the_next_collage)
{
    {
        const updating quiet(main);
        main.optNone.select();
    }
    for (const bool next_collage : {false, true}) {
        main.collage.forced_by_style.select(main.border_options, main.optMedium);
        main.collage.borders_free = false;
        main.optNone.enable(false);
        if (next_collage)
            begin_collage(main, collage_kind::designed);
        else
            leave_quick_style(main);
        EXPECT_TRUE(main.collage.borders_free);
        expect_states(main, next_collage ? "optNone1 optNone+" : "optNone1");
    }
}

TEST_F(users_settings, make_no_preview_on_their_way_back)
{
    main.design_record.frames = "45";
    make_poster();
    finish();
    EXPECT_EQ(previews_of([&] { begin_collage(main, collage_kind::quick); }), 0);
    EXPECT_FALSE(main.skip_preview_click);
}

TEST_F(forced_settings_test, go_back_the_last_first_and_only_once)
{
    forced_settings forced;
    forced.set_text(main.cmbFrame, "45");
    forced.set_text(main.cmbFrame, "60");
    forced.release();
    EXPECT_EQ(main.cmbFrame.text(), "7");
    main.cmbFrame.set_text("60");
    forced.release();
    EXPECT_EQ(main.cmbFrame.text(), "60");
}

TEST_F(forced_settings_test, leave_none_of_a_set_selected_where_none_was)
{
    const updating quiet(main);
    main.optLarge.select(false);
    forced_settings forced;
    forced.select(main.border_options, main.optTiny);
    forced.release();
    expect_states(main, "optTiny0 optLarge0");
}

TEST_F(users_settings, of_a_new_collage_have_nothing_of_the_one_before)
{
    for (const collage_kind kind : {collage_kind::quick, collage_kind::designed}) {
        main.collage.matrix_both = main.collage.frames_design = main.collage.quick_active =
            main.collage.stretch_design = true;
        main.collage.frame_set_name = "club";
        main.quick.quick_reduced = main.quick.photos_portrait = 3;
        main.shape_row_bias = 2;
        {
            const updating quiet(main);
            main.optShapes.select();
        }
        begin_collage(main, kind);
        EXPECT_FALSE(main.collage.matrix_both || main.collage.frames_design || main.collage.quick_active ||
                     main.collage.stretch_design);
        EXPECT_EQ(main.collage.frame_set_name, "");
        EXPECT_EQ(main.collage.kind, kind);
        EXPECT_EQ(main.quick.quick_reduced + main.quick.photos_portrait + main.shape_row_bias, 0);
        EXPECT_EQ(selected_of(main.style_options), nullptr);
    }
}
