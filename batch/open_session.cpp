#include "batch/open_session.h"

#include "session/connect_all.h"
#include "session/start/program_tables.h"

namespace {

random_source chance_of(const batch_arguments & arguments)
{
    return arguments.seed ? seeded_random(*arguments.seed) : clock_random();
}

}  // namespace

open_session::open_session(const batch_arguments & arguments, const batch_folders & folders)
    : scratch(folders.scratch),
      desk(arguments.answers_yes ? answer::yes : answer::no),
      all(desk, chance_of(arguments))
{
    if (arguments.threads)
        all.main.workers.set_count(*arguments.threads);
    all.main.install_folder = folders.install_folder;
    share_data_folder(all.main, folders.data, scratch.path());
    tell_spoiled_tables(all.main);
    connect_all(all);
    all.main.load();
    all.main.left_out.told_by = left_out_photos::teller::caller;
    desk.progress = [this] { return all.main.txtDoing.text(); };
}
