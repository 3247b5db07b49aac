#include "support/windows/frmSize.h"

#include "session/windows.h"
#include "support/numbers.h"

namespace {

constexpr int16 full_size = 3000;  // of a square too, whose own size is 2000
constexpr int16 web_size = 750;
constexpr int smallest = 50, largest = 12000;

const char * full_caption(bool is_square)
{
    return is_square ? "Full size - 2000px * 2000px   (for printing up to 20 x 20 inches)"
                     : "Full size - 2000px * 3000px   (for printing up to 20 x 30 inches)";
}

void show_number(frmSize & window, bool on)
{
    window.lblSize.show(on);
    window.txtSize.show(on);
}

void load_window(windows & all)
{
    all.size.optFull.select();
    show_number(all.size, false);
    all.size.txtSize.set_text("");
    all.size.optFull.set_caption(full_caption(all.image.is_square));
}

int wanted_size(const frmSize & window)
{
    if (window.optCustom.selected())
        return nearest(leading_number(window.txtSize.text()));
    return window.optWeb.selected() ? web_size : full_size;
}

void cmdOk_click(frmSize & window, desktop & desk)
{
    const int wanted = wanted_size(window);
    if (wanted < smallest || wanted > largest) {
        desk.message(wanted < smallest ? "Collage would be too small" : "Collage would be too large");
        return;
    }
    window.result = narrow(wanted);
    window.unload();
}

}  // namespace

void connect_frmSize(windows & all)
{
    frmSize & window = all.size;
    window.on_load = [&all] { load_window(all); };
    window.optFull.on_click = window.optWeb.on_click = [&window] { show_number(window, false); };
    window.optCustom.on_click = [&window] { show_number(window, true); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all.size, all.main.desk); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
