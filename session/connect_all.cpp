#include "session/connect_all.h"

#include "session/connect_windows.h"
#include "session/main_window/connect_main.h"

void connect_all(windows & all)
{
    connect_main(all.main);
    connect_windows(all);
}
