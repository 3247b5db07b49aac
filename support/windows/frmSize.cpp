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

void choose(windows & all, int16 size)
{
    all.image.save_size = size;
    show_number(all.size, false);
}

void cmdOk_click(windows & all)
{
    frmSize & window = all.size;
    if (window.optCustom.selected()) {
        const int wanted = nearest(leading_number(window.txtSize.text()));
        if (wanted < smallest || wanted > largest) {
            all.main.desk.message(wanted < smallest ? "Collage would be too small"
                                                    : "Collage would be too large");
            return;
        }
        all.image.save_size = narrow(wanted);
    }
    window.unload();
}

bool cancel(windows & all)
{
    all.image.save_size = 0;
    return true;
}

}  // namespace

void connect_frmSize(windows & all)
{
    frmSize & window = all.size;
    window.on_load = [&all] { load_window(all); };
    window.on_query_unload = [&all] { return cancel(all); };
    window.optFull.on_click = [&all] { choose(all, full_size); };
    window.optWeb.on_click = [&all] { choose(all, web_size); };
    window.optCustom.on_click = [&all] { show_number(all.size, true); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&all] { all.size.request_close(); };
}
