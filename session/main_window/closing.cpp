#include "session/main_window/closing.h"

#include "designs/catalogue/last_flurn.h"
#include "session/windows.h"

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

void quit_program(frmMain & main)
{
    main.trace = " QUIT " + main.trace;
    main.quit_requested = true;
    cleanup_memory(main);
}

void connect_closing(frmMain & main)
{
    main.on_query_unload = [&main] { return may_close(main); };
}
