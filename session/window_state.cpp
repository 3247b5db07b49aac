#include "session/window_state.h"

#include "support/colors.h"

#include <array>

namespace {

constexpr std::uint32_t red = 0x0000FF, yellow = 0x00FFFF, green = 0x00FF00, blue = 0xFF0000, cyan = 0xFFFF00,
                        magenta = 0xFF00FF, black = 0, white = 0xFFFFFF;

// The groups that a run closes, in the order of `enable_memory::groups`.
std::array<group *, 9> run_groups(frmMain & main)
{
    return {&main.frmOutput,    &main.frmStyle,  &main.frmOrientation, &main.frmShake,  &main.frmBackground,
            &main.frmOrnaments, &main.frmBorder, &main.frmCaption,     &main.frmDisplay};
}

void note_groups(frmMain & main)
{
    const auto groups = run_groups(main);
    for (std::size_t i = 0; i < groups.size(); ++i)
        main.enabling.groups[i] = groups[i]->enabled();
    main.enabling.shadow_usable = main.frmOrnaments.enabled() && main.frmOrnaments.visible() &&
                                  main.picShadowColor.enabled() && main.frmHideOrnaments.visible();
    main.enabling.shadow_fixed = main.cmbShadow.enabled();
}

void enable_caption(frmMain & main)
{
    for (control * each :
         std::initializer_list<control *>{&main.optTop, &main.optBottom, &main.txtCaption, &main.lblFontSize,
                                          &main.cmbSize, &main.cmdFont, &main.lblFont})
        each->enable(true);
}

void enable_frame_and_shadow(frmMain & main)
{
    for (control * each : std::initializer_list<control *>{
             &main.lblShadow, &main.cmbShadow, &main.cmdShadowColor, &main.picShadowColor, &main.lblFrame,
             &main.cmbFrame, &main.cmdFrameColor, &main.picFrameColor})
        each->enable(true);
    main.picShadowColor.show(true);
    main.picFrameColor.show(true);
}

// Selecting the picture option asks for a picture when there is none, so there is one for that moment.
void select_picture_quietly(frmMain & main)
{
    const bool empty = main.txtBGimage.text().empty();
    if (empty)
        main.txtBGimage.set_text("x");
    main.optBGimage.select();
    if (empty)
        main.txtBGimage.set_text("");
}

}  // namespace

poster_shape selected_shape(const frmMain & main)
{
    if (main.optSquare.selected())
        return poster_shape::square;
    return main.optLandscape.selected() ? poster_shape::landscape : poster_shape::portrait;
}

void show_work_controls(frmMain & main, bool show)
{
    const updating quiet(main);
    for (control * each : std::initializer_list<control *>{
             &main.frmOutput, &main.frmOrnaments, &main.frmBackground, &main.frmCaption, &main.frmButtons,
             &main.frmBorder, &main.picSample, &main.frmDisplay})
        each->show(show);
    const bool show_quick = show && main.collage.quick_active;
    for (control * each :
         std::initializer_list<control *>{&main.frmOrientation, &main.frmStyle, &main.frmShake,
                                          &main.frmSpace, &main.frmAlign, &main.frmSquares, &main.chkOutline})
        each->show(show_quick);
    main.cmdFlurn.set_caption("Flurn");
}

void show_menus(frmMain & main, bool show)
{
    const updating quiet(main);
    for (menu_entry * each : {&main.mnuFile, &main.mnuQuick, &main.mnuDesigned, &main.mnuMatrix,
                              &main.mnuLettering, &main.mnuPuzzle, &main.mnuSeparator, &main.mnuDesign,
                              &main.mnuPictures, &main.mnuFrames, &main.mnuHelp})
        each->show(show);
    main.menus_shown = show;
    main.set_caption(show ? "F l u r n s" : "F i n i s h i n g   t o u c h e s");
}

void show_choosing_stage(frmMain & main)
{
    main.set_back_color(stage_background);
    main.picSplash.show(true);
}

void clear_stage(frmMain & main)
{
    main.picSplash.show(false);
    main.set_back_color(about_background);
    main.lblBlanks.show(false);
    main.cmbBlanks.show(false);
    main.cmbBlanks.set_text("0");
}

void enable_all(frmMain & main)
{
    const updating quiet(main);
    enable_caption(main);
    enable_frame_and_shadow(main);
    main.optBGimage.enable(true);
    main.optSolid.enable(true);
    main.optSolid.select();
    select_picture_quietly(main);
    for (control * each : std::initializer_list<control *>{
             &main.cmdBGcolor, &main.cmbBlend, &main.lblBlend, &main.chkCaption, &main.chkSoftEdge,
             &main.chkRounded, &main.cmdBGimage, &main.picBGcolor, &main.txtBGimage})
        each->enable(true);
    main.picBGcolor.show(true);
    main.picFrameColor.tag = "True";
}

void start_enable_true(frmMain & main)
{
    main.enabling.groups.fill(true);
    for (group * each : run_groups(main))
        each->enable(true);
}

void set_enable(frmMain & main, bool enable)
{
    if (enable == main.enabling.last)
        return;
    main.enabling.last = enable;
    if (!enable)
        note_groups(main);
    const auto groups = run_groups(main);
    for (std::size_t i = 0; i < groups.size(); ++i)
        groups[i]->enable(enable && main.enabling.groups[i]);
    main.cmdFlurn.enable(enable);
    main.cmdHelp.enable(enable);
}

std::uint32_t color_from_name(std::string_view name)
{
    struct named {
        std::string_view name;
        std::uint32_t color;
    };
    constexpr std::array<named, 6> colors{{{"Red", red},
                                           {"Yellow", yellow},
                                           {"Green", green},
                                           {"Blue", blue},
                                           {"Cyan", cyan},
                                           {"Magenta", magenta}}};
    for (const named & each : colors)
        if (each.name == name)
            return each.color;
    return black;
}

void show_caption_font(frmMain & main)
{
    main.lblFont.set_caption(main.txtCaption.font().name + " x " + main.txtCaption.tag);
}

// Letters of the ground's own colour can't have been meant for it: they were chosen on another one.
void color_caption_box(frmMain & main)
{
    const std::uint32_t behind = main.picBGcolor.back_color();
    main.txtCaption.set_back_color(behind);
    const std::uint32_t readable = behind == black ? white : black;
    const bool chosen = main.caption_color != 0 && main.caption_color != behind;
    main.txtCaption.set_fore_color(chosen ? main.caption_color : readable);
}
