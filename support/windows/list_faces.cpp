#include "support/windows/list_faces.h"

void show_chooser_face(const list_buttons & buttons)
{
    buttons.done.set_caption("Ok");
    buttons.done.enable(false);
    buttons.erase.set_caption("Cancel");
    buttons.erase.enable(true);
    buttons.edit.show(false);
}

void show_manager_face(const list_buttons & buttons)
{
    buttons.done.set_caption("Done");
    buttons.done.enable(true);
    buttons.erase.set_caption("Delete");
    buttons.edit.show(true);
    forbid_changes(buttons);
}

void allow_all(const list_buttons & buttons)
{
    for (button * each : {&buttons.edit, &buttons.erase, &buttons.done})
        each->enable(true);
}

void forbid_changes(const list_buttons & buttons)
{
    buttons.erase.enable(false);
    buttons.edit.enable(false);
}
