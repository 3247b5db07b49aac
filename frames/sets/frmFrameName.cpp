#include "frames/sets/frmFrameName.h"

#include "frames/sets/frame_sets.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/typed_name.h"

// The name of a new frame set.

namespace {

constexpr std::size_t longest_name = 255;  // bytes, as file systems have it

// At either end they can't be seen, and a list of names is read back without them.
std::string without_blanks_around(const std::string & name)
{
    const std::size_t first = name.find_first_not_of(' ');
    return first == std::string::npos ? "" : name.substr(first, name.find_last_not_of(' ') + 1 - first);
}

// A name without a letter, "." and ".." are folders that are there.
std::string name_fault(const frmMain & main, const std::string & name)
{
    std::string fault = typed_name_fault(name, "a frame set", longest_name);
    if (fault.empty() && folder_exists(frame_set_folder(main, name)))
        fault = "You already have a custom frame named:  " + name;
    if (fault.empty() && file_exists(frame_set_folder(main, name)))
        fault = "There is a file of that name where your custom frames are kept.";
    return fault;
}

void cmdOk_click(windows & all)
{
    const std::string name = without_blanks_around(all.frame_name.txtName.text());
    const std::string fault = name_fault(all.main, name);
    if (!fault.empty()) {
        all.main.desk.message(fault);
        return;
    }
    all.frame_name.result = name;
    all.frame_name.unload();
}

}  // namespace

void connect_frmFrameName(windows & all)
{
    frmFrameName & window = all.frame_name;
    window.on_load = [&window] { window.txtName.set_text(""); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
