#include "support/MFreeImage.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

namespace {

std::string picture_of(const opened_session & session, int width, int height)
{
    const std::string path = session.folder.at("photos/back.jpg");
    save_jpeg(plain(width, height, {1, 2, 3}), path);
    return path;
}

}  // namespace

TEST(optBGimage, asks_for_a_picture_and_draws_once)
{
    opened_session session;
    session.finish();
    session.main.optSolid.select();
    session.main.cmdFlurn.enable(false);
    const std::string path = picture_of(session, 8, 4);
    session.desk.will_choose_file(path);
    EXPECT_EQ(session.previews_of([&] { session.main.optBGimage.select(); }), 1);
    expect_states(session.main, "txtBGimage^ cmdBGimage^ frmBlend^ optBGimage1 optSolid0 cmdFlurn+");
    EXPECT_EQ(session.main.txtBGimage.text(), path);
    EXPECT_EQ(session.main.image_folder, folder_of(path));
    EXPECT_FALSE(session.main.bg_portrait);
}

TEST(optBGimage, does_not_ask_when_there_is_a_picture)
{
    opened_session session;
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.optBGimage.select();
    EXPECT_EQ(session.main.txtBGimage.text(), "/a.jpg");
}

TEST(optBGimage, a_cancel_goes_back_to_the_plain_ground_and_its_picture)
{
    opened_session session;
    session.finish();
    session.main.picBGcolor.set_back_color(0x123456);
    session.desk.will_choose_file(std::nullopt);
    EXPECT_EQ(session.previews_of([&] { session.main.optBGimage.select(); }), 0);
    expect_states(session.main, "optSolid1 optBGimage0 txtBGimage_ cmdBGimage_ frmBlend_ cmdFlurn+");
    EXPECT_EQ(session.main.bg_color, 0x123456u);
}

TEST(optBGimage, shows_no_picture_controls_for_the_picture_of_a_design)
{
    opened_session session;
    session.main.load();
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.collage.bg_from_design = true;
    session.main.optBGimage.select();
    expect_states(session.main, "txtBGimage_ cmdBGimage_ frmBlend_");
}

TEST(cmdBGimage, tells_portrait_pictures_from_landscape_ones)
{
    struct row {
        int width, height;
        bool portrait;
    };
    for (const row & each : {row{4, 8, true}, row{8, 4, false}, row{5, 5, true}}) {
        opened_session session;
        session.main.bg_portrait = !each.portrait;
        session.desk.will_choose_file(picture_of(session, each.width, each.height));
        session.main.cmdBGimage.click();
        EXPECT_EQ(session.main.bg_portrait, each.portrait) << each.width << " by " << each.height;
    }
}

TEST(optSolid, hides_the_picture_controls_and_notes_the_colour)
{
    opened_session session;
    session.finish();
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.optBGimage.select();
    session.main.picBGcolor.set_back_color(0x123456);
    session.main.cmdFlurn.enable(false);
    EXPECT_EQ(session.previews_of([&] { session.main.optSolid.select(); }), 1);
    expect_states(session.main, "txtBGimage_ cmdBGimage_ frmBlend_ cmdFlurn+");
    EXPECT_EQ(session.main.bg_color, 0x123456u);
}

TEST(txtBGimage, emptied_by_the_user_selects_the_plain_background)
{
    opened_session session;
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.optBGimage.select();
    session.main.txtBGimage.set_text("");
    expect_states(session.main, "optSolid1 optBGimage0");
    EXPECT_TRUE(session.main.skip_preview_click);
}

TEST(txtBGimage, emptied_by_the_window_leaves_the_options)
{
    opened_session session;
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.optBGimage.select();
    const updating quiet(session.main);
    session.main.txtBGimage.set_text("");
    expect_states(session.main, "optBGimage1");
    EXPECT_FALSE(session.main.skip_preview_click);
}

TEST(txtBGimage, each_change_is_drawn_unless_the_user_is_typing)
{
    opened_session session;
    session.finish();
    session.main.cmdFlurn.enable(false);
    EXPECT_EQ(session.previews_of([&] { session.main.txtBGimage.set_text("/a.jpg"); }), 1);
    expect_states(session.main, "cmdFlurn+");
    fire(session.main.txtBGimage.on_enter);
    expect_states(session.main, "optPreview0");
    EXPECT_EQ(session.previews_of([&] { session.main.txtBGimage.set_text("/ab.jpg"); }), 0);
}

TEST(txtBGimage, emptied_while_the_preview_waits_draws_the_plain_ground_once)
{
    opened_session session;
    session.finish();
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.optBGimage.select();
    fire(session.main.txtBGimage.on_enter);
    // As a window does whose box disappears under the keyboard.
    session.main.txtBGimage.on_shown_change = [&box = session.main.txtBGimage] {
        if (!box.visible())
            fire(box.on_leave);
    };
    EXPECT_EQ(session.previews_of([&] { session.main.txtBGimage.set_text(""); }), 1);
    expect_states(session.main, "optSolid1 optPreview1");
}

TEST(txtBGimage, emptied_with_the_preview_off_leaves_it_off)
{
    opened_session session;
    session.finish();
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.optBGimage.select();
    session.main.optSample.select();
    fire(session.main.txtBGimage.on_enter);
    EXPECT_EQ(session.previews_of([&] { session.main.txtBGimage.set_text(""); }), 0);
    expect_states(session.main, "optSolid1 optSample1 optPreview0");
}

TEST(txtBGimage, gone_through_without_a_change_lets_the_preview_go_on)
{
    opened_session session;
    session.finish();
    session.main.txtBGimage.set_text("/a.jpg");
    session.main.chkRandom.tick(true);
    fire(session.main.txtBGimage.on_enter);
    EXPECT_EQ(session.previews_of([&] { fire(session.main.txtBGimage.on_leave); }), 0);
    expect_states(session.main, "optPreview1 chkRandom1");
    fire(session.main.txtBGimage.on_enter);
    session.main.txtBGimage.set_text("/ab.jpg");
    fire(session.main.txtBGimage.on_leave);
    expect_states(session.main, "optPreview0");
}

TEST(txtBGimage, the_enter_key_draws_what_was_typed)
{
    opened_session session;
    session.finish();
    fire(session.main.txtBGimage.on_enter);
    session.main.txtBGimage.set_text("/ab.jpg");
    EXPECT_EQ(session.previews_of([&] { fire(session.main.txtBGimage.on_return); }), 1);
    expect_states(session.main, "optPreview1");
}

TEST(background_color, reaches_the_caption_box_and_the_ground_behind_a_photo_at_once)
{
    struct row {
        std::uint32_t letters, ground, shown;
    };
    constexpr std::uint32_t white = 0xFFFFFF, black = 0, red = 0x0000FF;
    for (const row & each : {row{0, white, black}, row{0, black, white}, row{red, white, red},
                             row{red, red, black}, row{white, white, black}}) {
        opened_session session;
        session.finish();
        session.main.caption_color = each.letters;
        session.main.txtBGimage.set_text("/a.jpg");
        session.main.optBGimage.select();
        session.desk.will_choose_color(each.ground);
        EXPECT_EQ(session.previews_of([&] { session.main.cmdBGcolor.click(); }), 1);
        EXPECT_EQ(session.main.bg_color, each.ground);
        EXPECT_EQ(session.main.txtCaption.back_color(), each.ground);
        EXPECT_EQ(session.main.txtCaption.fore_color(), each.shown) << each.letters << " on " << each.ground;
    }
}

TEST(background_color, goes_back_to_the_swatch_with_the_plain_ground_after_a_cancelled_photo)
{
    opened_session session;
    session.finish();
    session.desk.will_choose_color(0x445566);
    session.main.cmdBGcolor.click();
    session.desk.will_choose_file(std::nullopt);
    session.main.optBGimage.select();
    expect_states(session.main, "optSolid1 optBGimage0");
    EXPECT_EQ(session.main.bg_color, 0x445566u);
    EXPECT_EQ(session.main.picBGcolor.back_color(), 0x445566u);
}

TEST(background_color, is_chosen_by_button_and_swatch)
{
    opened_session session;
    session.finish();
    session.desk.will_choose_color(0x010203);
    EXPECT_EQ(session.previews_of([&] { session.main.picBGcolor.click(); }), 1);
    EXPECT_EQ(session.main.picBGcolor.back_color(), 0x010203u);
    session.desk.will_choose_color(std::nullopt);
    EXPECT_EQ(session.previews_of([&] { session.main.cmdBGcolor.click(); }), 0);
    EXPECT_EQ(session.main.picBGcolor.back_color(), 0x010203u);
}

TEST(after_changes, of_blend_outline_and_border_are_drawn_once_each)
{
    opened_session session;
    session.finish();
    frmMain & main = session.main;
    EXPECT_EQ(session.previews_of([&] { main.cmbBlend.choose(3); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.cmbBlend.set_text("35"); }), 1);
    EXPECT_EQ(session.previews_of([&] { main.chkOutline.tick(true); }), 1);
    for (option_button * each :
         {&main.optTiny, &main.optSmall, &main.optMedium, &main.optLarge, &main.optHuge, &main.optNone})
        EXPECT_EQ(session.previews_of([&] { each->select(); }), 1) << each->name();
    EXPECT_EQ(main.chkOutline.tag, "");
}
