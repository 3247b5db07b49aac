#include "session/main_window/connect_main.h"

#include "quick/quick_controls.h"
#include "quick/quick_orientation.h"
#include "quick/quick_styles.h"
#include "session/main_window/background.h"
#include "session/main_window/buttons.h"
#include "session/main_window/caption.h"
#include "session/main_window/closing.h"
#include "session/main_window/load.h"
#include "session/main_window/menus.h"
#include "session/main_window/ornaments.h"
#include "session/main_window/photos.h"
#include "session/main_window/shake.h"

void connect_main(frmMain & main)
{
    connect_load(main);
    connect_closing(main);
    connect_menus(main);
    connect_ornaments(main);
    connect_background(main);
    connect_caption(main);
    connect_shake(main);
    connect_photos(main);
    connect_buttons(main);
    connect_quick_controls(main);
    connect_quick_styles(main);
    connect_quick_orientation(main);
}
