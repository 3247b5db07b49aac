#include "session/main_window/caption.h"

#include "session/main_window/redraw.h"
#include "session/window_state.h"
#include "session/windows.h"

namespace {

void txtCaption_change(frmMain & main)
{
    const std::string & clear = main.design_record.caption_clear;
    if (clear.empty() || clear == "Yes") {
        if (main.txtCaption.text().empty()) {
            main.chkClear.enable(false);
            main.chkClear.tick(false);
        } else if (!main.collage.matrix_session) {
            main.chkClear.enable(true);
        }
    }
    refresh_after_change(main);
}

// The box shows its letters smaller than the collage does.
void show_size_of_tag(frmMain & main)
{
    font_style font = main.txtCaption.font();
    font.size = leading_number(main.txtCaption.tag) / 10 + 8;
    main.txtCaption.set_font(font);
    show_caption_font(main);
}

void take_size(frmMain & main)
{
    main.txtCaption.tag = main.cmbSize.text();
    show_size_of_tag(main);
    refresh_after_change(main);
}

void cmbSize_typed(frmMain & main)
{
    const double value = number_in(main.cmbSize);
    if (value < 1)
        main.cmbSize.set_text("40");
    else if (value > 400)
        main.cmbSize.set_text("260");
    else
        take_size(main);
}

void cmdFont_click(frmMain & main)
{
    main.font_size_text = main.cmbSize.text();
    if (main.font_size_text.empty())
        return;
    main.desk.show_modal(main.all->font);
    show_size_of_tag(main);
    if (main.font_size_text.empty())
        return;
    {
        const updating quiet(main);
        main.cmbSize.set_text(main.font_size_text);
    }
    refresh_after_change(main);
}

// A design may leave no room for a caption.
void open_caption(frmMain & main)
{
    if (main.txtCaption.enabled())
        main.desk.show_modal(main.all->caption_text);
}

}  // namespace

void connect_caption(frmMain & main)
{
    main.txtCaption.on_change = [&main] { txtCaption_change(main); };
    main.cmbSize.on_typed = [&main] { cmbSize_typed(main); };
    main.cmbSize.on_click = [&main] { take_size(main); };
    main.chkClear.on_change = [&main] { refresh_after_change(main); };
    main.optTop.on_click = main.optBottom.on_click = [&main] { refresh_after_change(main); };
    main.frmCaption.on_click = [&main] { open_caption(main); };
    main.cmdFont.on_click = [&main] { cmdFont_click(main); };
}
