#include "designs/catalogue/last_flurn.h"
#include "session/handlers.h"
#include "support/windows/show_help.h"

// The menu bar, and the ways out of the program.

namespace {

void cleanup_memory(frmMain & main)
{
    main.trace = " ZZ " + main.trace;
    if (main.all != nullptr)
        for (form * each : main.all->others())
            each->unload();
    forget_last_flurn(main);
    if (main.quit_requested)
        main.unload();
}

void mnuQuit_click(frmMain & main)
{
    main.trace = " QUIT " + main.trace;
    main.quit_requested = true;
    cleanup_memory(main);
}

// The first close only backs out of the work.
bool may_close(frmMain & main)
{
    main.trace = " XX " + main.trace;
    if (!main.menus_shown) {
        main.cmdCancel.click();
        return false;
    }
    cleanup_memory(main);
    return true;
}

}  // namespace

void connect_menus(frmMain & main)
{
    main.mnuSeparator.enable(false);  // a divider, never to be chosen
    main.mnuQuit.on_click = [&main] { mnuQuit_click(main); };
    main.on_query_unload = [&main] { return may_close(main); };
    main.mnuHelpTopics.on_click = [&main] { show_help(main, "help_main.htm"); };
    main.mnuStarted.on_click = [&main] { main.desk.open_document(documentation_address("/tutorials.htm")); };
    main.mnuHelpAbout.on_click = [&main] { main.desk.show_modal(main.all->about); };
    main.mnuFAQ.on_click = [&main] { main.desk.open_document(documentation_address("/faq.htm")); };
}
