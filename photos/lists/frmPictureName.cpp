#include "photos/lists/frmPictureName.h"

#include "photos/lists/list_name.h"
#include "session/windows.h"
#include "support/files/paths.h"

// The name of a new list.

namespace {

void load_picture_name(frmPictureName & window)
{
    window.txtName.set_text("");
    window.cmdOk.enable(false);
}

// No to the question stays; Cancel goes on as Yes does, on purpose.
bool keeps_old_list(windows & all, const std::string & path)
{
    return file_exists(path) &&
           all.main.desk.ask({.title = "",
                              .text = "Do you want to overwrite the existing \r\n" + path + " file?",
                              .offered = answers::yes_no_cancel,
                              .on_enter = answer::no}) == answer::no;
}

// The list that is overwritten goes when the new one is written, not before: it survives a disk that is full.
void cmdOk_click(windows & all)
{
    const std::string & name = all.picture_name.txtName.text();
    if (name.empty())
        return;
    const std::string fault = list_name_fault(name);
    if (!fault.empty()) {
        all.main.desk.message(fault);
        return;
    }
    const std::string path = joined(all.main.data_folder, "piclists/") + name + ".pls";
    if (keeps_old_list(all, path))
        return;
    all.picture_name.result = all.main.cmdPhotos.tag = all.main.txtPhotos.tag = path;
    all.picture_name.unload();
}

}  // namespace

void connect_frmPictureName(windows & all)
{
    frmPictureName & window = all.picture_name;
    window.on_load = [&window] { load_picture_name(window); };
    window.txtName.on_change = [&window] { window.cmdOk.enable(!window.txtName.text().empty()); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
