#include "designs/unfinished.h"

#include "designs/catalogue.h"
#include "designs/catalogue_lines.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

namespace {

std::string note_path(const frmMain & main)
{
    return joined(main.data_folder, "tmp/unfinished");
}

template <typename Step>
void quietly(Step step)
{
    try {
        step();
    } catch (const platform_error &) {
        return;  // a start doesn't fail because of what an earlier one left
    }
}

// A note may have been made by hand: it is trusted no more than a catalogue is.
bool may_go(const text_lines & catalogue, const std::string & file)
{
    const text_lines noted{"[Design000]", "File=" + name_of(file), "Sample=" + name_of(file),
                           "Description=" + name_of(file)};
    return names_file(noted, file) && !names_file(catalogue, file);
}

void finish_noted(const frmMain & main)
{
    if (!file_exists(note_path(main)))
        return;
    const text_lines catalogue = lines_of_file(catalogue_path(main));
    for (const std::string & file : lines_of_file(note_path(main)))
        if (may_go(catalogue, file))
            delete_file(joined(main.data_folder, file));
    forget_unfinished(main);
}

void remove_parts(const std::string & folder)
{
    if (!folder_exists(folder))
        return;
    for (const std::string & name : files_in(folder))
        if (name.ends_with(part_ending))
            delete_file(joined(folder, name));
}

void remove_parts_of_sets(const std::string & frames)
{
    if (!folder_exists(frames))
        return;
    for (const std::string & set : folders_in(frames))
        quietly([&] { remove_parts(joined(frames, set)); });
}

}  // namespace

void note_unfinished(const frmMain & main, const std::vector<std::string> & files)
{
    replace_file(note_path(main), text_of(files));
}

void forget_unfinished(const frmMain & main)
{
    delete_file(note_path(main));
}

void remove_leftovers(const frmMain & main)
{
    const auto in_data = [&](const char * name) { return joined(main.data_folder, name); };
    quietly([&] { finish_noted(main); });
    quietly([&] { remove_parts(main.data_folder); });
    for (const char * folder :
         {"tmp", "designs", "descriptions", "samples", "piclists", "user_images", "frames", "icons"})
        quietly([&] { remove_parts(in_data(folder)); });
    quietly([&] { remove_parts_of_sets(in_data("frames")); });
    for (const char * file : {"designs.new", "icons/icons.new", "tmp/designs.ini"})
        quietly([&] { delete_file(in_data(file)); });
    for (const char * folder : {"icons.part", "frames.part", "alpha.part", "puzzle.part", "tmp/replaced"})
        quietly([&] { remove_tree(in_data(folder)); });
}
