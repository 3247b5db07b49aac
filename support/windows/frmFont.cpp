#include "support/windows/frmFont.h"

#include "session/windows.h"
#include "support/numbers.h"
#include "support/windows/display_faces.h"

namespace {

// The first font of the screen is passed over; of the others those for titles are what a caption wants.
std::vector<std::string> offered_fonts(desktop & desk)
{
    std::vector<std::string> names = desk.font_names();
    if (!names.empty())
        names.erase(names.begin());
    return display_faces_first(std::move(names));
}

template <typename Change>
void change_font(frmFont & window, Change change)
{
    font_style font = window.txtFont.font();
    change(font);
    window.txtFont.set_font(font);
}

void show_size(frmFont & window)
{
    window.lblSize.set_caption("Font size:  " + std::to_string(window.ScrSize.position()));
    change_font(window, [&](font_style & font) { font.size = window.ScrSize.position(); });
}

void show_color(frmFont & window, std::uint32_t color)
{
    window.picColor.set_back_color(color);
    window.txtFont.set_fore_color(color);
}

void load_window(frmFont & window, frmMain & main)
{
    font_style font = main.txtCaption.font();
    font.size = leading_number(main.txtCaption.tag);
    window.txtFont.set_text("Flurns");
    window.txtFont.set_back_color(main.txtCaption.back_color());
    show_color(window, main.txtCaption.fore_color());
    window.txtFont.set_font(font);
    window.chkBold.tick(font.bold);
    window.chkItalic.tick(font.italic);
    window.chkUnderline.tick(font.underline);
    window.frmNeed.show(main.font_extended);
    window.ScrSize.set_position(nearest(font.size));
    show_size(window);
    window.lstFonts.set_items(offered_fonts(main.desk));
    window.lstFonts.select_text(font.name);
}

void choose_color(frmFont & window, frmMain & main)
{
    if (const auto color = main.desk.choose_color(window.picColor.back_color()))
        show_color(window, *color);
}

// The caption keeps the size in which its box shows it; its own goes to the tag. A colour that was left alone
// goes on following the background.
void cmdOk_click(frmFont & window, frmMain & main)
{
    font_style font = window.txtFont.font();
    font.size = main.txtCaption.font().size;
    main.txtCaption.set_font(font);
    if (window.txtFont.fore_color() != main.txtCaption.fore_color())
        main.caption_color = window.txtFont.fore_color();
    main.txtCaption.set_fore_color(window.txtFont.fore_color());
    main.font_size_text = window.ScrSize.value();
    main.txtCaption.tag = main.font_size_text;
    window.unload();
}

bool cancel(frmMain & main)
{
    main.font_size_text.clear();
    return true;
}

void connect_sample(frmFont & window)
{
    window.lstFonts.on_click = [&window] {
        change_font(window, [&](font_style & font) { font.name = window.lstFonts.text(); });
    };
    window.chkBold.on_change = [&window] {
        change_font(window, [&](font_style & font) { font.bold = window.chkBold.ticked(); });
    };
    window.chkItalic.on_change = [&window] {
        change_font(window, [&](font_style & font) { font.italic = window.chkItalic.ticked(); });
    };
    window.chkUnderline.on_change = [&window] {
        change_font(window, [&](font_style & font) { font.underline = window.chkUnderline.ticked(); });
    };
    window.ScrSize.on_change = [&window] { show_size(window); };
}

}  // namespace

void connect_frmFont(windows & all)
{
    frmFont & window = all.font;
    connect_sample(window);
    window.on_load = [&all] { load_window(all.font, all.main); };
    window.on_query_unload = [&all] { return cancel(all.main); };
    window.cmdColor.on_click = window.picColor.on_click = [&all] { choose_color(all.font, all.main); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all.font, all.main); };
    window.cmdCancel.on_click = [&all] { all.font.request_close(); };
}
