#include "session/start/frmFilling.h"

#include "session/windows.h"

void connect_frmFilling(windows & all)
{
    all.filling.on_query_unload = [] { return false; };  // the filling goes on
}
