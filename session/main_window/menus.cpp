#include "session/main_window/menus.h"

#include "designers/start_designer.h"
#include "designs/design_menus.h"
#include "designs/package/package_import.h"
#include "frames/frame_menus.h"
#include "photos/photo_menus.h"
#include "quick/start_quick.h"
#include "recipes/open_flurn.h"
#include "session/main_window/closing.h"
#include "session/main_window/designed.h"
#include "session/window_state.h"
#include "session/windows.h"
#include "support/windows/show_help.h"

namespace {

void show_select_photos(frmMain & main)
{
    main.desk.show_modal(main.all->select_photos);
}

void quick(frmMain & main)
{
    begin_quick(main, [&main] { show_select_photos(main); });
}

template <designer Chosen>
void designed_by(frmMain & main)
{
    start_designer(main, Chosen, [&main] { show_select_photos(main); });
}

void help_topics(frmMain & main)
{
    show_help(main, "help_main.htm");
}

void tutorials(frmMain & main)
{
    show_documentation(main, "tutorials.htm");
}

void answers_to_questions(frmMain & main)
{
    show_documentation(main, "faq.htm");
}

void about(frmMain & main)
{
    main.desk.show_modal(main.all->about);
}

void recent_flurns(frmMain & main)
{
    if (const auto chosen = ask(main.desk, main.all->recent))
        open_flurn(main, *chosen);
}

struct hooked_entry {
    menu_entry frmMain::*entry;
    void (*action)(frmMain & main);
};

constexpr hooked_entry hooked_entries[] = {
    {&frmMain::mnuRecent, recent_flurns},
    {&frmMain::mnuQuit, quit_program},
    {&frmMain::mnuQuick, quick},
    {&frmMain::mnuDesigned, begin_designed},
    {&frmMain::mnuMatrix, designed_by<designer::matrix>},
    {&frmMain::mnuLettering, designed_by<designer::lettering>},
    {&frmMain::mnuPuzzle, designed_by<designer::puzzle>},
    {&frmMain::mnuImport, import_package},
    {&frmMain::mnuEditDesigns, edit_designs},
    {&frmMain::mnuSaveDesign, save_last_design},
    {&frmMain::mnuSaveLast, save_last_photo_list},
    {&frmMain::mnuNewList, add_photo_list},
    {&frmMain::mnuEditSelections, edit_photo_lists},
    {&frmMain::mnuNewFrame, add_custom_frame},
    {&frmMain::mnuEditFrame, edit_custom_frames},
    {&frmMain::mnuIcon, import_icon},
    {&frmMain::mnuHelpTopics, help_topics},
    {&frmMain::mnuStarted, tutorials},
    {&frmMain::mnuFAQ, answers_to_questions},
    {&frmMain::mnuHelpAbout, about},
};

// What began no collage leaves the stage as it was.
void choose(frmMain & main, void (*action)(frmMain & main))
{
    action(main);
    if (main.loaded() && main.menus_shown)
        show_choosing_stage(main);
}

}  // namespace

void connect_menus(frmMain & main)
{
    main.mnuSeparator.enable(false);  // a divider, never to be chosen
    for (const hooked_entry & each : hooked_entries)
        (main.*each.entry).on_click = [&main, action = each.action] { choose(main, action); };
}
