#include "session/new_poster.h"

#include "frames/sets/frame_field.h"
#include "session/window_state.h"
#include "support/files/paths.h"

namespace {

constexpr std::uint32_t red = 0x0000FF, black = 0;

using controls = std::initializer_list<control *>;

void disable(controls all)
{
    for (control * each : all)
        each->enable(false);
}

bool is_one_of(std::string_view text, std::initializer_list<std::string_view> words)
{
    for (const std::string_view word : words)
        if (text == word)
            return true;
    return false;
}

void begin_poster(frmMain & main)
{
    main.run.cancel_requested = false;
    main.table.reshuffle_choice = photo_table::reshuffle::not_asked;
    main.mnuSaveDesign.enable(false);
    main.cmdHelp.enable(true);
    main.font_extended = true;
    main.quick.matrix_offset = -1;
    // A picture background without a picture: its click opens the chooser.
    if (main.optBGimage.selected() && main.txtBGimage.text().empty()) {
        main.optBGimage.select(false);
        main.optBGimage.select();
    }
}

void prepare_caption_box(frmMain & main)
{
    color_caption_box(main);
    show_caption_font(main);
    if (main.cmbSize.text().empty())
        main.cmbSize.set_text("60");
    if (main.cmbBlend.text().empty())
        main.cmbBlend.set_text("70");
}

void enter_finishing_stage(frmMain & main)
{
    show_menus(main, false);
    show_work_controls(main, true);
    enable_all(main);
    if (main.txtBGimage.text().empty())
        main.txtBGimage.show(false);
}

void apply_matching(frmMain & main)
{
    main.collage.design_matches = is_one_of(main.design_record.match, {"Yes", ""});
    main.chkMatch.show(main.collage.design_matches);
    if (main.collage.design_matches) {
        main.chkMatch.tick(true);
        main.frmShake.show(false);
        main.cmbSpace.show(true);
    }
    main.run.match_active = false;
}

void apply_kind(frmMain & main)
{
    if (main.design_record.file == "__frames" || main.collage.frames_design) {
        for (check_box * each : {&main.chkCaption, &main.chkSoftEdge, &main.chkRounded})
            main.collage.forced.tick(*each, false);
        main.frmOrnaments.show(false);
    }
    if (main.collage.matrix_both) {
        main.chkMatch.tick(true);
        disable({&main.chkMatch, &main.chkCaption});
        main.collage.forced.tick(main.chkCaption, false);
    }
}

void apply_borders(frmMain & main)
{
    const bool grid = main.design_record.style == "Matrix";
    for (option_button * each : main.border_options)
        if (grid || main.collage.borders_free)
            each->enable(!grid);
    if (grid)
        main.collage.forced.select(main.border_options, main.optNone);
    main.collage.borders_free = true;
}

void apply_turn(frmMain & main)
{
    main.collage.landscape_turn = 0;
    if (main.design_record.background == "Landscape" && main.poster_tall)
        main.collage.landscape_turn = -90;
    if (main.design_record.background == "Portrait" && !main.poster_tall)
        main.collage.landscape_turn = 90;
}

std::string background_path(const frmMain & main)
{
    const std::string & value = main.design_record.bg_image;
    return value.starts_with("user_images") ? joined(main.data_folder, value)
                                            : joined(joined(main.install_folder, "images"), value);
}

void take_background_of_design(frmMain & main)
{
    main.optBGimage.select(false);
    main.collage.bg_from_design = true;
    main.collage.forced.set_text(main.txtBGimage, background_path(main));
    main.txtBGimage.show(false);
    main.collage.forced.set_text(main.cmbBlend, "100");
    main.collage.forced.set_back_color(main.picBGcolor, main.back_color());
    main.picBGcolor.show(false);
    disable({&main.optSolid, &main.optBGimage, &main.cmbBlend, &main.lblBlend, &main.cmdBGcolor,
             &main.cmdBGimage, &main.picBGcolor});
}

void forbid_background(frmMain & main)
{
    main.optBGimage.select(false);
    main.optSolid.select();
    disable({&main.optBGimage, &main.optSolid, &main.cmdBGcolor, &main.cmdBGimage});
    main.picBGcolor.show(false);
    main.frmBlend.show(false);
}

void apply_background(frmMain & main)
{
    main.optBGimage.enable(true);
    main.cmdBGimage.enable(true);
    const std::string & image = main.design_record.bg_image;
    if (image == "None") {
        forbid_background(main);
    } else if (image == "Solid") {
        main.optSolid.select();
        main.optBGimage.enable(false);
        main.optBGimage.select(false);
    } else if (is_one_of(image, {"Either", ""})) {
        main.optSolid.select();
        main.optBGimage.select(false);
    } else {
        take_background_of_design(main);
    }
}

void apply_caption(frmMain & main)
{
    const std::string & caption = main.design_record.caption;
    if (caption == "None") {
        disable({&main.optTop, &main.optBottom, &main.txtCaption, &main.lblFontSize, &main.cmbSize,
                 &main.cmdFont, &main.lblFont});
    } else if (caption == "Top") {
        main.optBottom.enable(false);
        main.collage.forced.select(main.caption_options, main.optTop);
    } else if (caption == "Bottom") {
        main.optTop.enable(false);
        main.collage.forced.select(main.caption_options, main.optBottom);
    }
    if (!main.design_record.caption_color.empty())
        main.txtCaption.set_fore_color(red);
    // The three words are shown as text as well; that is meant.
    if (!caption.empty())
        main.collage.forced.set_text(main.txtCaption, caption);
}

void apply_frame_size_of_design(frmMain & main)
{
    const std::string & frames = main.design_record.frames;
    if (frames == "No") {
        disable({&main.lblFrame, &main.cmbFrame, &main.cmdFrameColor, &main.picFrameColor});
        main.picFrameColor.tag = "False";
        main.picFrameColor.show(false);
    } else if (frames == "Color") {
        disable({&main.lblFrame, &main.cmbFrame});
    } else if (frames == "Adjust") {
        main.collage.frames_inside = true;
    } else if (frames == "None") {
        main.frmOrnaments.show(false);
    } else if (!is_one_of(frames, {"Yes", ""})) {
        main.collage.forced.set_text(main.cmbFrame, frames);
        disable({&main.lblFrame, &main.cmbFrame, &main.chkCaption, &main.chkSoftEdge, &main.chkRounded,
                 &main.picFrameColor});
    }
}

void apply_frames(frmMain & main)
{
    main.collage.frames_inside = false;
    main.frmOrnaments.show(!is_one_of(main.lblDesign.caption(), {"Puzzle", "Lettering"}));
    apply_frame_size_of_design(main);
    if (!main.design_record.frame_color.empty()) {
        disable({&main.cmdFrameColor, &main.picFrameColor});
        main.collage.forced.set_back_color(main.picFrameColor,
                                           color_from_name(main.design_record.frame_color));
    }
}

void apply_shadow_size_of_design(frmMain & main)
{
    const std::string & shadows = main.design_record.shadows;
    if (shadows == "No") {
        disable({&main.lblShadow, &main.cmbShadow, &main.cmdShadowColor, &main.picShadowColor});
        main.picShadowColor.show(false);
    } else if (shadows == "Color") {
        disable({&main.lblShadow, &main.cmbShadow});
    } else if (!is_one_of(shadows, {"Yes", ""})) {
        // The frame's number, not the shadow's own: the supplied designs are made for it.
        main.collage.forced.set_text(main.cmbShadow, main.design_record.frames);
        disable({&main.lblShadow, &main.cmbShadow, &main.chkCaption, &main.chkSoftEdge, &main.chkRounded,
                 &main.picShadowColor});
        main.picShadowColor.show(false);
    }
}

void apply_shadows(frmMain & main)
{
    apply_shadow_size_of_design(main);
    if (main.design_record.design == "Block") {
        main.chkCaption.enable(false);
        main.collage.forced.tick(main.chkCaption, false);
    }
    if (!main.design_record.shadow_color.empty()) {
        main.collage.forced.set_back_color(main.picShadowColor, black);
        disable({&main.cmdShadowColor, &main.picShadowColor});
    }
}

// One of the three styles of a photo. Its handler unticks the others, so they are noted first.
void force_alone(frmMain & main, check_box & style)
{
    const auto styles = {&main.chkSoftEdge, &main.chkRounded, &main.chkCaption};
    for (check_box * each : styles)
        main.collage.forced.note(*each, each == &style);
    style.tick(true);
    for (check_box * each : styles)
        each->tick(each == &style);
}

void force_soft_edges(frmMain & main)
{
    force_alone(main, main.chkSoftEdge);
    disable({&main.chkCaption, &main.lblFrame, &main.lblShadow, &main.cmbShadow, &main.cmbFrame,
             &main.cmdShadowColor, &main.cmdFrameColor, &main.picShadowColor, &main.picFrameColor});
    main.picShadowColor.show(false);
    main.picFrameColor.show(false);
}

void force_cards(frmMain & main)
{
    force_alone(main, main.chkCaption);
    disable({&main.chkSoftEdge, &main.chkRounded, &main.lblFrame, &main.lblShadow, &main.cmbShadow,
             &main.cmbFrame, &main.cmdShadowColor, &main.picShadowColor});
    main.picShadowColor.show(false);
    // The card has the frame's colour.
    for (control * each : controls{&main.picFrameColor, &main.cmdFrameColor}) {
        each->enable(true);
        each->show(true);
    }
}

void apply_photo_style(frmMain & main)
{
    if (main.design_record.soft_edge == "No")
        disable({&main.chkSoftEdge, &main.chkRounded});
    if (main.design_record.soft_edge == "Yes")
        force_soft_edges(main);
    if (main.design_record.block == "No")
        main.chkCaption.enable(false);
    if (main.design_record.block == "Yes")
        force_cards(main);
}

void apply_caption_clearing(frmMain & main)
{
    if (main.design_record.caption_clear == "Yes") {
        fire(main.txtCaption.on_change);
    } else if (!main.txtCaption.text().empty() && main.collage.quick_active) {
        main.chkClear.enable(true);
    } else {
        main.chkClear.enable(false);
        main.chkClear.tick(false);
    }
}

void take_list_of_frame_set(frmMain & main)
{
    if (main.collage.frame_set_name.empty())
        return;
    const std::string list = get_frame_field(main, "Picture List");
    if (is_one_of(list, {"None", ""}))
        return;
    main.txtPhotos.tag = joined(joined(main.data_folder, "piclists"), list + ".pls");
}

void show_what_remains(frmMain & main)
{
    const std::string & family = main.design_record.design;
    main.chkEvolve.show(family == "Scatter");
    if (family != "Scatter")
        main.chkEvolve.tick(false);
    if (main.optBlock.selected()) {
        main.frmSpace.show(true);
        main.frmShake.show(false);
    }
    main.chkRandom.show(true);
    main.cmdShuffle.show(true);
    if (main.collage.matrix_rotate || is_one_of(family, {"Scatter", "Frame", "Theme"}))
        main.chkRounded.enable(false);
}

// The keyboard begins where a key that is pressed unawares changes nothing.
void give_keyboard(const frmMain & main)
{
    const option_button * const style = main.collage.quick_active ? selected_of(main.style_options) : nullptr;
    (style != nullptr ? *style : main.optPreview).take_focus();
}

}  // namespace

void new_poster(frmMain & main)
{
    const updating quiet(main);
    begin_poster(main);
    prepare_caption_box(main);
    enter_finishing_stage(main);
    apply_matching(main);
    apply_kind(main);
    apply_borders(main);
    apply_turn(main);
    apply_background(main);
    apply_caption(main);
    apply_frames(main);
    apply_shadows(main);
    apply_photo_style(main);
    apply_caption_clearing(main);
    if (main.design_record.borders == "No") {
        main.frmBorder.enable(false);
        main.frmBorder.show(false);
    }
    take_list_of_frame_set(main);
    show_what_remains(main);
    give_keyboard(main);
}
