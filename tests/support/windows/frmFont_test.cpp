#include "tests/session/opened_session.h"

namespace {

/// The font window, open over a caption in bold Serif of 120 points, white on black.
struct font_test : testing::Test {
    font_test()
    {
        main.txtCaption.set_font({.name = "Serif", .size = 20, .bold = true});
        main.txtCaption.tag = "120";
        main.txtCaption.set_back_color(0);
        main.txtCaption.set_fore_color(0xFFFFFF);
        main.font_extended = true;
        main.font_size_text = "120";
        window.load();
    }
    opened_session session;
    frmMain & main = session.main;
    frmFont & window = session.all.font;
};

}  // namespace

TEST_F(font_test, opens_with_the_font_of_the_caption)
{
    EXPECT_EQ(window.caption(), "Fonts available");
    EXPECT_EQ(window.txtFont.text(), "Flurns");
    EXPECT_EQ(window.txtFont.font(), (font_style{.name = "Serif", .size = 120, .bold = true}));
    EXPECT_EQ(window.txtFont.fore_color(), 0xFFFFFFu);
    EXPECT_EQ(window.txtFont.back_color(), 0u);
    EXPECT_EQ(window.picColor.back_color(), 0xFFFFFFu);
    EXPECT_EQ(window.ScrSize.position(), 120);
    EXPECT_EQ(window.lblSize.caption(), "Font size:  120");
    expect_states(window, "chkBold1 chkItalic0 chkUnderline0 frmNeed^");
}

TEST_F(font_test, offers_the_fonts_of_the_screen_but_the_first)
{
    session.desk.fonts = {"Arial", "Sans", "Serif"};
    window.unload();
    window.load();
    EXPECT_EQ(window.lstFonts.items(), (std::vector<std::string>{"Sans", "Serif"}));
    EXPECT_EQ(window.lstFonts.text(), "Serif");
    session.desk.fonts = {};
    window.unload();
    window.load();
    EXPECT_TRUE(window.lstFonts.items().empty());
}

TEST_F(font_test, offers_the_faces_for_titles_before_the_others)
{
    session.desk.fonts = {"Arial", "Courier", "EB Garamond", "Quicksand", "Serif"};
    window.unload();
    window.load();
    EXPECT_EQ(window.lstFonts.items(),
              (std::vector<std::string>{"Quicksand", "EB Garamond", "Courier", "Serif"}));
    EXPECT_EQ(window.lstFonts.text(), "Serif");
}

TEST_F(font_test, hides_size_and_colour_until_a_collage_is_begun)
{
    main.font_extended = false;
    window.unload();
    window.load();
    expect_states(window, "frmNeed_");
}

TEST_F(font_test, each_control_changes_the_sample_at_once)
{
    session.desk.fonts = {"Arial", "Sans", "Serif"};
    window.unload();
    window.load();
    window.lstFonts.select(0);
    window.chkBold.tick(false);
    window.chkItalic.tick(true);
    window.chkUnderline.tick(true);
    window.ScrSize.set_position(64);
    EXPECT_EQ(window.txtFont.font(),
              (font_style{.name = "Sans", .size = 64, .italic = true, .underline = true}));
    EXPECT_EQ(window.lblSize.caption(), "Font size:  64");
}

TEST_F(font_test, button_and_swatch_choose_the_colour)
{
    session.desk.will_choose_color(0x0000FF);
    window.cmdColor.click();
    EXPECT_EQ(window.picColor.back_color(), 0x0000FFu);
    EXPECT_EQ(window.txtFont.fore_color(), 0x0000FFu);
    session.desk.will_choose_color(std::nullopt);
    window.picColor.click();
    EXPECT_EQ(window.picColor.back_color(), 0x0000FFu);
}

TEST_F(font_test, ok_hands_the_font_to_the_caption)
{
    window.chkBold.tick(false);
    window.chkUnderline.tick(true);
    window.ScrSize.set_position(200);
    session.desk.will_choose_color(0x0000FF);
    window.cmdColor.click();
    window.cmdOk.click();
    EXPECT_FALSE(window.loaded());
    EXPECT_EQ(main.txtCaption.font(), (font_style{.name = "Serif", .size = 20, .underline = true}));
    EXPECT_EQ(main.txtCaption.fore_color(), 0x0000FFu);
    EXPECT_EQ(main.caption_color, 0x0000FFu);
    EXPECT_EQ(main.txtCaption.tag, "200");
    EXPECT_EQ(main.font_size_text, "200");
}

TEST_F(font_test, a_colour_left_alone_goes_on_following_the_background)
{
    window.cmdOk.click();
    EXPECT_EQ(main.caption_color, 0u);
    EXPECT_EQ(main.txtCaption.fore_color(), 0xFFFFFFu);
}

TEST_F(font_test, every_way_of_cancelling_leaves_the_caption_as_it_was)
{
    const font_style before = main.txtCaption.font();
    for (int round = 0; round < 2; ++round) {
        window.load();
        window.chkItalic.tick(true);
        window.ScrSize.set_position(200);
        session.desk.will_choose_color(0x0000FF);
        window.cmdColor.click();
        main.font_size_text = "120";
        if (round == 0)
            window.cmdCancel.click();
        else
            window.request_close();
        EXPECT_FALSE(window.loaded());
        EXPECT_EQ(main.txtCaption.font(), before);
        EXPECT_EQ(main.txtCaption.fore_color(), 0xFFFFFFu);
        EXPECT_EQ(main.txtCaption.tag, "120");
        EXPECT_EQ(main.font_size_text, "");
    }
}

// ---- the button of the main window

TEST(cmdFont, takes_font_and_size_from_the_window_and_draws_once)
{
    opened_session session;
    session.finish();
    session.desk.on_modal<frmFont>([](frmFont & window) {
        window.chkItalic.tick(true);
        window.ScrSize.set_position(160);
        window.cmdOk.click();
    });
    session.main.txtCaption.set_font({.name = "Serif", .size = 16});
    EXPECT_EQ(session.previews_of([&] { session.main.cmdFont.click(); }), 1);
    EXPECT_EQ(session.main.txtCaption.font(), (font_style{.name = "Serif", .size = 24, .italic = true}));
    EXPECT_EQ(session.main.txtCaption.tag, "160");
    EXPECT_EQ(session.main.cmbSize.text(), "160");
    EXPECT_EQ(session.main.lblFont.caption(), "Serif x 160");
}

TEST(cmdFont, a_cancel_draws_nothing)
{
    opened_session session;
    session.finish();
    session.main.cmbSize.choose(3);
    session.desk.on_modal<frmFont>([&](frmFont & window) {
        EXPECT_EQ(session.main.font_size_text, "100");
        window.cmdCancel.click();
    });
    EXPECT_EQ(session.previews_of([&] { session.main.cmdFont.click(); }), 0);
    EXPECT_EQ(session.main.cmbSize.text(), "100");
    EXPECT_EQ(session.main.txtCaption.tag, "100");
}

TEST(cmdFont, does_nothing_without_a_size)
{
    opened_session session;
    session.main.cmbSize.on_typed = nullptr;
    session.main.cmbSize.set_text("");
    session.main.cmdFont.click();
    EXPECT_TRUE(session.desk.shown_windows.empty());
}
