#include "frames/icons/frmIconName.h"

#include "frames/icons/icon_line.h"
#include "frames/icons/icon_list.h"
#include "session/windows.h"

// The name of a new icon.

namespace {

void load_icon_name(frmIconName & window)
{
    window.txtName.set_text("");
    window.cmdOk.enable(false);
}

void cmdOk_click(windows & all)
{
    const std::string & name = all.icon_name.txtName.text();
    if (name.empty())
        return;
    const std::string fault = icon_name_fault(name);
    if (!fault.empty()) {
        all.main.desk.message(fault);
        return;
    }
    if (is_icon_name_taken(all.main, name)) {
        all.main.desk.message("You already have an icon named '" + name +
                              "'\r\nPlease enter a different name.");
        return;
    }
    const std::optional<taken_icon> taken = take_icon(all.main, name);
    if (!taken)
        return;
    if (taken->renamed)
        all.main.desk.message("New icon file imported with the name:  " + taken->file);
    all.icon_name.unload();
}

}  // namespace

void connect_frmIconName(windows & all)
{
    frmIconName & window = all.icon_name;
    window.on_load = [&window] { load_icon_name(window); };
    window.txtName.on_change = [&window] { window.cmdOk.enable(!window.txtName.text().empty()); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
