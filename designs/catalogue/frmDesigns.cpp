#include "designs/catalogue/frmDesigns.h"

#include "designs/catalogue/saved_design.h"
#include "session/windows.h"

// The list of the user's own designs.

namespace {

void cmdDelete_click(windows & all)
{
    frmDesigns & window = all.designs;
    const int index = window.lstDesigns.list_index();
    const listed_design design = window.designs.at(static_cast<std::size_t>(index));
    if (all.main.desk.ask({.title = "D e l e t e   D e s i g n",
                           .text = "Deleting the " + design.shown + " design... Ok?",
                           .offered = answers::yes_no,
                           .on_enter = answer::no}) != answer::yes)
        return;
    if (!delete_design(all.main, design)) {
        all.main.desk.message("Didn't find the design to be deleted.  Might be a problem?");
        return;
    }
    window.designs.erase(window.designs.begin() + index);
    window.lstDesigns.remove_item(index);
    window.cmdDelete.enable(false);
    if (window.lstDesigns.items().empty())
        window.unload();
}

}  // namespace

void connect_frmDesigns(windows & all)
{
    frmDesigns & window = all.designs;
    window.on_load = [&window] { window.cmdDelete.enable(false); };
    window.lstDesigns.on_click = [&window] { window.cmdDelete.enable(true); };
    window.cmdDelete.on_click = [&all] { cmdDelete_click(all); };
    window.cmdDone.on_click = [&window] { window.unload(); };
}
