#include "session/connect_all.h"

#include "designers/start_designer.h"
#include "quick/quick_controls.h"
#include "quick/start_quick.h"
#include "session/connect_windows.h"
#include "session/handlers.h"

void connect_all(windows & all)
{
    connect_load(all.main);
    connect_ornaments(all.main);
    connect_background(all.main);
    connect_caption(all.main);
    connect_shake(all.main);
    connect_output(all.main);
    connect_menus(all.main);
    connect_designed(all.main);
    connect_buttons(all.main);
    connect_quick_controls(all.main);
    connect_quick_styles(all.main);
    connect_quick_orientation(all.main);
    connect_quick_menu(all.main);
    connect_designer_menus(all.main);
    connect_windows(all);
    connect_design_menus(all);
    connect_frame_menus(all);
    connect_photo_menus(all);
}
