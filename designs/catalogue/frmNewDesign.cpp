#include "designs/catalogue/frmNewDesign.h"

#include "designs/catalogue/saved_design.h"
#include "session/windows.h"

// The name of a new design.

namespace {

void load_new_design(frmNewDesign & window)
{
    window.txtName.set_text("");
    window.txtDescription.set_text("");
}

void OKButton_click(windows & all)
{
    const std::string & name = all.new_design.txtName.text();
    if (!check_name_text(all.main, name) || !check_design_name(all.main, name))
        return;
    save_design(all.main, name, all.new_design.txtDescription.text());
    all.main.mnuSaveDesign.enable(false);
    all.new_design.unload();
}

}  // namespace

void connect_frmNewDesign(windows & all)
{
    frmNewDesign & window = all.new_design;
    window.on_load = [&window] { load_new_design(window); };
    window.OKButton.on_click = [&all] { OKButton_click(all); };
    window.CancelButton.on_click = [&window] { window.unload(); };
}
