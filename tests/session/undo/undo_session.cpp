#include "tests/session/undo/undo_session.h"

#include "support/files/text_file.h"

undo_session::undo_session()
{
    keep_history(main, history);
    desk.keeps_messages = true;
    start();
}

sight undo_session::seen() const
{
    sight now{.controls = {},
              .photos = {main.table.photos.begin(), main.table.photos.begin() + main.table.last_photo + 1},
              .picture = read_file(finished_path(main)),
              .shown_file = main.picSample.file()};
    for (const control * each : main.controls())
        if (dynamic_cast<const menu_entry *>(each) == nullptr)
            now.controls.push_back(state_of(*each));
    return now;
}

bool undo_session::undo()
{
    const bool there_is = main.mnuUndo.enabled();
    main.mnuUndo.click();
    return there_is;
}

bool undo_session::redo()
{
    const bool there_is = main.mnuRedo.enabled();
    main.mnuRedo.click();
    return there_is;
}
