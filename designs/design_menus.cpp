#include "designs/design_menus.h"

#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/last_flurn.h"
#include "designs/catalogue/saved_design.h"
#include "session/windows.h"

namespace {

void show_own_designs(windows & all)
{
    all.designs.designs = own_designs(all.main);
    std::vector<std::string> shown;
    for (const listed_design & design : all.designs.designs)
        shown.push_back(design.shown);
    all.designs.lstDesigns.set_items(std::move(shown));
}

}  // namespace

void save_last_design(frmMain & main)
{
    if (last_flurn(main).how.is_square)
        main.desk.message("We can't save designs on a square background.  Sorry.");
    else if (GetNextDesign(main).empty())
        main.desk.message(
            "You are limited to 400 Designs.\r\nYou will need to remove one before you can save another.");
    else
        main.desk.show_modal(main.all->new_design);
}

void edit_designs(frmMain & main)
{
    windows & all = *main.all;
    show_own_designs(all);
    if (all.designs.lstDesigns.items().empty())
        main.desk.message("    You don't have any designs to edit.    ");
    else
        main.desk.show_modal(all.designs);
}
