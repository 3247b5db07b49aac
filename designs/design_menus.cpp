#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/last_flurn.h"
#include "designs/catalogue/saved_design.h"
#include "designs/package/package_import.h"
#include "session/handlers.h"

// The menu of the designs.

namespace {

void mnuSaveDesign_click(windows & all)
{
    if (last_flurn(all.main).how.is_square)
        all.main.desk.message("We can't save designs on a square background.  Sorry.");
    else if (GetNextDesign(all.main).empty())
        all.main.desk.message(
            "You are limited to 400 Designs.\r\nYou will need to remove one before you can save another.");
    else
        all.main.desk.show_modal(all.new_design);
}

void show_own_designs(windows & all)
{
    all.designs.designs = own_designs(all.main);
    std::vector<std::string> shown;
    for (const listed_design & design : all.designs.designs)
        shown.push_back(design.shown);
    all.designs.lstDesigns.set_items(std::move(shown));
}

void mnuEditDesigns_click(windows & all)
{
    show_own_designs(all);
    if (all.designs.lstDesigns.items().empty())
        all.main.desk.message("    You don't have any designs to edit.    ");
    else
        all.main.desk.show_modal(all.designs);
}

}  // namespace

void connect_design_menus(windows & all)
{
    all.main.mnuSaveDesign.on_click = [&all] { mnuSaveDesign_click(all); };
    all.main.mnuEditDesigns.on_click = [&all] { mnuEditDesigns_click(all); };
    all.main.mnuImport.on_click = [&all] { import_package(all.main); };
}
