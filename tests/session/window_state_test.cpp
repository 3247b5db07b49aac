#include "session/window_state.h"

#include "session/windows.h"
#include "tests/session/opened_session.h"

namespace {

constexpr const char * nine_enabled =
    "frmOutput+ frmStyle+ frmOrientation+ frmShake+ frmBackground+ frmOrnaments+ frmBorder+ frmCaption+ "
    "frmDisplay+ cmdFlurn+ cmdHelp+";
constexpr const char * nine_disabled =
    "frmOutput- frmStyle- frmOrientation- frmShake- frmBackground- frmOrnaments- frmBorder- frmCaption- "
    "frmDisplay- cmdFlurn- cmdHelp-";

}  // namespace

TEST(show_work_controls, shows_the_quick_groups_only_while_a_quick_style_is_active)
{
    opened_session session;
    show_work_controls(session.main, false);
    session.main.cmdFlurn.set_caption("Save");
    show_work_controls(session.main, true);
    expect_states(session.main,
                  "frmOutput^ frmOrnaments^ frmBackground^ frmCaption^ frmButtons^ frmBorder^ "
                  "picSample^ frmDisplay^ frmOrientation_ frmStyle_ frmShake_ frmSpace_ "
                  "frmAlign_ frmSquares_ chkOutline_");
    EXPECT_EQ(session.main.cmdFlurn.caption(), "Flurn");
    session.main.collage.quick_active = true;
    show_work_controls(session.main, true);
    expect_states(session.main,
                  "frmOrientation^ frmStyle^ frmShake^ frmSpace^ frmAlign^ frmSquares^ chkOutline^");
    show_work_controls(session.main, false);
    expect_states(session.main, "frmOutput_ frmOrientation_ frmStyle_ chkOutline_ picSample_");
}

TEST(show_menus, shows_and_hides_all_eleven)
{
    opened_session session;
    show_menus(session.main, false);
    expect_states(session.main,
                  "mnuFile_ mnuQuick_ mnuDesigned_ mnuMatrix_ mnuLettering_ mnuPuzzle_ "
                  "mnuSeparator_ mnuDesign_ mnuPictures_ mnuFrames_ mnuHelp_ mnuQuit^");
    EXPECT_FALSE(session.main.menus_shown);
    EXPECT_EQ(session.main.caption(), "F i n i s h i n g   t o u c h e s");
    show_menus(session.main, true);
    expect_states(session.main,
                  "mnuFile^ mnuQuick^ mnuDesigned^ mnuMatrix^ mnuLettering^ mnuPuzzle^ "
                  "mnuSeparator^ mnuDesign^ mnuPictures^ mnuFrames^ mnuHelp^");
    EXPECT_TRUE(session.main.menus_shown);
    EXPECT_EQ(session.main.caption(), "F l u r n s");
}

TEST(show_menus, leaves_the_guard_of_its_caller_standing)
{
    opened_session session;
    const updating quiet(session.main);
    show_menus(session.main, false);
    show_work_controls(session.main, true);
    enable_all(session.main);
    EXPECT_TRUE(session.main.updating_controls);
}

TEST(enable_all, frees_every_control_that_a_design_may_limit)
{
    opened_session session;
    const char * const names[] = {
        "optTop",     "optBottom",     "txtCaption",     "lblFontSize",    "cmbSize",    "cmdFont",
        "lblShadow",  "cmbShadow",     "cmdShadowColor", "picShadowColor", "lblFrame",   "cmbFrame",
        "lblFont",    "cmdFrameColor", "picFrameColor",  "optBGimage",     "optSolid",   "cmdBGcolor",
        "cmbBlend",   "lblBlend",      "chkCaption",     "chkSoftEdge",    "chkRounded", "cmdBGimage",
        "picBGcolor", "txtBGimage"};
    for (const char * name : names)
        session.main.find(name)->enable(false);
    for (picture * each :
         {&session.main.picShadowColor, &session.main.picFrameColor, &session.main.picBGcolor})
        each->show(false);
    session.main.picFrameColor.tag = "False";
    enable_all(session.main);
    for (const char * name : names)
        EXPECT_TRUE(session.main.find(name)->enabled()) << name;
    expect_states(session.main, "picShadowColor^ picFrameColor^ picBGcolor^");
    EXPECT_EQ(session.main.picFrameColor.tag, "True");
}

TEST(enable_all, leaves_the_picture_option_selected_without_asking_for_a_picture)
{
    opened_session session;
    enable_all(session.main);
    expect_states(session.main, "optBGimage1 optSolid0");
    EXPECT_EQ(session.main.txtBGimage.text(), "");
    EXPECT_FALSE(session.main.skip_preview_click);
}

TEST(enable_all, keeps_a_picture_that_is_there)
{
    opened_session session;
    session.main.txtBGimage.set_text("/a.jpg");
    enable_all(session.main);
    expect_states(session.main, "optBGimage1");
    EXPECT_EQ(session.main.txtBGimage.text(), "/a.jpg");
}

TEST(set_enable, closes_the_window_for_a_run_and_opens_it_as_it_was)
{
    opened_session session;
    session.main.frmShake.enable(false);
    session.main.frmBorder.enable(false);
    set_enable(session.main, false);
    expect_states(session.main, nine_disabled);
    set_enable(session.main, true);
    expect_states(session.main,
                  "frmOutput+ frmStyle+ frmOrientation+ frmShake- frmBackground+ frmOrnaments+ "
                  "frmBorder- frmCaption+ frmDisplay+ cmdFlurn+ cmdHelp+");
}

TEST(set_enable, the_same_value_twice_changes_nothing)
{
    opened_session session;
    set_enable(session.main, false);
    session.main.cmbShadow.enable(false);
    set_enable(session.main, false);
    EXPECT_TRUE(session.main.enabling.shadow_fixed);
    set_enable(session.main, true);
    expect_states(session.main, nine_enabled);
    session.main.cmdFlurn.enable(false);
    session.main.frmOutput.enable(false);
    set_enable(session.main, true);
    expect_states(session.main, "cmdFlurn- frmOutput-");
}

TEST(set_enable, starts_as_enabled)
{
    opened_session session;
    session.main.frmOutput.enable(false);
    set_enable(session.main, true);
    expect_states(session.main, "frmOutput-");
}

TEST(set_enable, notes_whether_shadows_may_be_drawn)
{
    struct row {
        const char * name;
        void (*change)(frmMain &);
        bool usable, fixed;
    };
    const row rows[] = {
        {"free", [](frmMain &) {}, true, true},
        {"group disabled", [](frmMain & main) { main.frmOrnaments.enable(false); }, false, true},
        {"group hidden", [](frmMain & main) { main.frmOrnaments.show(false); }, false, true},
        {"swatch disabled", [](frmMain & main) { main.picShadowColor.enable(false); }, false, true},
        {"sizes hidden", [](frmMain & main) { main.frmHideOrnaments.show(false); }, false, true},
        {"list disabled", [](frmMain & main) { main.cmbShadow.enable(false); }, true, false},
    };
    for (const row & each : rows) {
        opened_session session;
        each.change(session.main);
        set_enable(session.main, false);
        EXPECT_EQ(session.main.enabling.shadow_usable, each.usable) << each.name;
        EXPECT_EQ(session.main.enabling.shadow_fixed, each.fixed) << each.name;
    }
}

TEST(start_enable_true, enables_all_nine_and_notes_them_so)
{
    opened_session session;
    session.main.frmBorder.enable(false);
    start_enable_true(session.main);
    expect_states(session.main, nine_enabled);
    for (const bool noted : session.main.enabling.groups)
        EXPECT_TRUE(noted);
}

TEST(color_from_name, knows_seven_names_and_gives_black_for_any_other)
{
    EXPECT_EQ(color_from_name("Black"), 0u);
    EXPECT_EQ(color_from_name("Red"), 255u);
    EXPECT_EQ(color_from_name("Yellow"), 65535u);
    EXPECT_EQ(color_from_name("Green"), 65280u);
    EXPECT_EQ(color_from_name("Blue"), 16711680u);
    EXPECT_EQ(color_from_name("Cyan"), 16776960u);
    EXPECT_EQ(color_from_name("Magenta"), 16711935u);
    EXPECT_EQ(color_from_name("red"), 0u);
    EXPECT_EQ(color_from_name("Orange"), 0u);
    EXPECT_EQ(color_from_name(""), 0u);
}

TEST(show_caption_font, tells_name_and_size)
{
    opened_session session;
    session.main.txtCaption.set_font({.name = "Serif", .size = 12});
    session.main.txtCaption.tag = "140";
    show_caption_font(session.main);
    EXPECT_EQ(session.main.lblFont.caption(), "Serif x 140");
}
