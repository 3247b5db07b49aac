#include "session/handlers.h"

namespace {

void load_image_window(frmImage & window, const frmMain & main)
{
    window.lblImageName.set_caption(main.image_to_show);
    window.lblImageName.show(false);
    window.picDisplay.load(main.image_to_show);
}

}  // namespace

void connect_frmImage(windows & all)
{
    frmImage & window = all.image;
    window.on_load = [&all] { load_image_window(all.image, all.main); };
    window.cmdClose.on_click = [&all] { all.image.unload(); };
    // They come with the dialogs of saving and printing.
    for (button * each : {&window.cmdSave, &window.cmdPrint, &window.cmdView})
        each->enable(false);
}
