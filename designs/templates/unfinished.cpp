#include "designs/templates/unfinished.h"

#include "designs/catalogue/catalogue.h"
#include "designs/package/manifest.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

namespace {

std::string note_path(const frmMain & main)
{
    return joined(main.data_folder, "tmp/unfinished");
}

std::string aside(const frmMain & main)
{
    return joined(main.data_folder, "tmp/replaced");
}

// Which places the folders set aside came from, the first in the folder "0"; while it is there they count.
std::string places_path(const frmMain & main)
{
    return joined(aside(main), "places");
}

text_lines noted_places(const frmMain & main)
{
    const std::string path = places_path(main);
    return file_exists(path) ? lines_of_file(path) : text_lines();
}

enum class moved_by { name, copy };

// A link of the user's may lead to another disk: there the folder is copied, under a name that counts for
// nothing until all of it is there, and the one copied from stays.
moved_by rename_or_copy(const std::string & from, const std::string & to)
{
    try {
        rename_folder(from, to);
        return moved_by::name;
    } catch (const platform_error & error) {
        if (error.number != error_number::path_access)
            throw;
    }
    const std::string beside = to + ".put_back" + std::string(part_ending);
    remove_tree(beside);
    copy_folder(from, beside);
    rename_folder(beside, to);
    return moved_by::copy;
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
        tried([&] { remove_parts(joined(frames, set)); });
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

void set_aside(const frmMain & main, const std::string & place)
{
    const std::string path = joined(main.data_folder, place);
    if (!folder_exists(path))
        return;
    make_folders(aside(main));
    text_lines places = noted_places(main);
    const std::string number = std::to_string(places.size());
    places.push_back(place);
    replace_file(places_path(main), text_of(places));
    if (rename_or_copy(path, joined(aside(main), number)) == moved_by::copy)
        remove_tree(path);
}

void forget_set_aside(const frmMain & main)
{
    delete_file(places_path(main));
    remove_tree(aside(main));
}

void put_back(const frmMain & main)
{
    const text_lines places = noted_places(main);
    for (std::size_t left = places.size(); left-- > 0;) {
        const std::optional<std::string> place = folder_place(places[left]);
        const std::string kept = joined(aside(main), std::to_string(left));
        if (!place || !folder_exists(kept))
            continue;
        remove_tree(joined(main.data_folder, *place));
        // From here on what is kept must not be taken for a whole folder: it goes piece by piece.
        if (rename_or_copy(kept, joined(main.data_folder, *place)) == moved_by::copy)
            rename_folder(kept, kept + ".gone");
    }
    forget_set_aside(main);
}

void remove_leftovers(const frmMain & main)
{
    const auto in_data = [&](const char * name) { return joined(main.data_folder, name); };
    tried([&] { finish_noted(main); });
    tried([&] { put_back(main); });
    tried([&] { remove_parts(main.data_folder); });
    for (const char * folder : {"tmp", "designs", "descriptions", "samples", "piclists", "user_images",
                                "frames", "icons", "recipes"})
        tried([&] { remove_parts(in_data(folder)); });
    tried([&] { remove_parts_of_sets(in_data("frames")); });
    for (const char * file : {"designs.new", "icons/icons.new", "tmp/designs.ini"})
        tried([&] { delete_file(in_data(file)); });
    for (const char * folder : {"icons.part", "frames.part", "alpha.part", "puzzle.part"})
        tried([&] { remove_tree(in_data(folder)); });
}
