#include "frames/captions/frmCaptionText.h"

#include "session/windows.h"

// The caption of the collage.

namespace {

void load_caption_text(frmCaptionText & window, const frmMain & main)
{
    window.txtCaption.set_font(main.txtCaption.font());
    window.txtCaption.set_back_color(main.txtCaption.back_color());
    window.txtCaption.set_fore_color(main.txtCaption.fore_color());
    window.txtCaption.set_text(main.txtCaption.text());
    window.txtCaption.select_all();
    window.cmdClear.enable(!window.txtCaption.text().empty());
}

void cmdOk_click(windows & all)
{
    const std::string caption = all.caption_text.txtCaption.text();
    all.caption_text.unload();
    all.main.txtCaption.set_text(caption);
}

}  // namespace

void connect_frmCaptionText(windows & all)
{
    frmCaptionText & window = all.caption_text;
    window.on_load = [&all] { load_caption_text(all.caption_text, all.main); };
    window.txtCaption.on_change = [&window] { window.cmdClear.enable(!window.txtCaption.text().empty()); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
    window.cmdClear.on_click = [&window] { window.txtCaption.set_text(""); };
}
