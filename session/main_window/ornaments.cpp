#include "session/main_window/ornaments.h"

#include "session/main_window/redraw.h"
#include "support/numbers.h"

namespace {

constexpr double largest_frame = 60, largest_shadow = 50;
constexpr int preview_share = 6;  // a preview's frame is that part of the full one

bool any_ornament(const frmMain & main)
{
    return main.chkRounded.ticked() || main.chkCaption.ticked() || main.chkSoftEdge.ticked();
}

// Their handlers redraw too; whoever unticks them does it once, afterwards.
void untick(frmMain & main, check_box & one, check_box & other)
{
    const updating quiet(main);
    one.tick(false);
    other.tick(false);
}

void chkRounded_change(frmMain & main)
{
    if (main.chkRounded.ticked()) {
        main.chkCaption.tag = "Skip";  // its handler, fired by the next line, must not undo this one
        untick(main, main.chkSoftEdge, main.chkCaption);
        main.frmHideOrnaments.show(false);
    } else if (!any_ornament(main)) {
        main.frmHideOrnaments.show(true);
    }
    if (!main.optScatter.selected())
        refresh_preview(main);
}

void chkSoftEdge_change(frmMain & main)
{
    if (main.chkSoftEdge.ticked()) {
        main.frmHideOrnaments.show(false);
        main.chkCaption.tag = "Skip";
        untick(main, main.chkCaption, main.chkRounded);
        refresh_preview(main);
    } else if (!any_ornament(main)) {
        main.frmHideOrnaments.show(true);
        refresh_preview(main);
    }
    main.chkSoftEdge.tag.clear();
}

void chkCaption_change(frmMain & main)
{
    if (main.chkCaption.ticked()) {
        main.frmHideOrnaments.show(false);
        main.chkSoftEdge.tag = "Skip";
        untick(main, main.chkSoftEdge, main.chkRounded);
    } else if (main.chkCaption.tag.empty()) {
        main.frmHideOrnaments.show(true);
    }
    main.chkCaption.tag.clear();
    refresh_preview(main);
}

// True when the text had to be cut into range: the handler has then run for the new text already.
bool cut_into_range(combo_box & list, double largest)
{
    const double value = number_in(list);
    const std::string before = list.text();
    if (value < 1)
        list.set_text("0");
    else if (value > largest)
        list.set_text(formatted(static_cast<int>(largest)));
    return list.text() != before;
}

// "0." may become 0.5, which is cut: cutting the point at once would leave the 5 alone.
bool is_half_typed(const combo_box & list)
{
    return !list.text().empty() &&
           std::string_view("+-.,").find(list.text().back()) != std::string_view::npos;
}

bool typed_out_of_range(combo_box & list, double largest)
{
    return !is_half_typed(list) && cut_into_range(list, largest);
}

// The number it was read as has been drawn.
void end_typing(frmMain & main, combo_box & list, double largest)
{
    const updating quiet(main);
    cut_into_range(list, largest);
}

void offer_color(button & chooser, picture & swatch, const combo_box & size)
{
    const bool drawn = number_in(size) >= 1;
    chooser.enable(drawn);
    swatch.show(drawn);
}

// A frame that is there at all has at least one pixel in a preview.
bool differs_on_sample(double size, double before)
{
    const auto shown = [](double full) { return static_cast<int>(full) / preview_share; };
    return shown(size) != shown(before) || (size < 1) != (before < 1);
}

void cmbFrame_change(frmMain & main)
{
    if (typed_out_of_range(main.cmbFrame, largest_frame))
        return;
    const double before = leading_number(main.last_frame_size);
    main.last_frame_size = main.cmbFrame.text();
    offer_color(main.cmdFrameColor, main.picFrameColor, main.cmbFrame);
    if (main.in_preview && differs_on_sample(number_in(main.cmbFrame), before))
        refresh_preview(main);
}

void cmbShadow_change(frmMain & main)
{
    if (typed_out_of_range(main.cmbShadow, largest_shadow))
        return;
    offer_color(main.cmdShadowColor, main.picShadowColor, main.cmbShadow);
    refresh_preview(main);
}

void choose_swatch_color(frmMain & main, picture & swatch)
{
    const std::optional<std::uint32_t> chosen = main.desk.choose_color(swatch.back_color());
    if (!chosen)
        return;
    swatch.set_back_color(*chosen);
    refresh_after_change(main);
}

}  // namespace

void connect_ornaments(frmMain & main)
{
    main.chkRounded.on_change = [&main] { chkRounded_change(main); };
    main.chkSoftEdge.on_change = [&main] { chkSoftEdge_change(main); };
    main.chkCaption.on_change = [&main] { chkCaption_change(main); };
    main.cmbFrame.on_typed = main.cmbFrame.on_click = [&main] { cmbFrame_change(main); };
    main.cmbShadow.on_typed = main.cmbShadow.on_click = [&main] { cmbShadow_change(main); };
    main.cmbFrame.on_leave = [&main] { end_typing(main, main.cmbFrame, largest_frame); };
    main.cmbShadow.on_leave = [&main] { end_typing(main, main.cmbShadow, largest_shadow); };
    main.cmdFrameColor.on_click = [&main] { choose_swatch_color(main, main.picFrameColor); };
    main.cmdShadowColor.on_click = [&main] { choose_swatch_color(main, main.picShadowColor); };
    main.picFrameColor.on_click = [&main] { main.cmdFrameColor.click(); };
    main.picShadowColor.on_click = [&main] { main.cmdShadowColor.click(); };
}
