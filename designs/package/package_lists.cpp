#include "designs/package/package_lists.h"

#include "designs/catalogue/catalogue.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <utility>

namespace {

std::string icons_path(const frmMain & main)
{
    return joined(main.data_folder, "icons/icons");
}

}  // namespace

void package_lists::read(gathered & list, const std::string & path) const
{
    if (list.commands > 0)
        return;
    list.read = read_file(path);
    list.lines = lines_of_text(list.read);
}

// The file under construction takes the place of the old one, which is never missing.
void package_lists::swap_in(const gathered & list, const std::string & path, const std::string & fresh,
                            const std::string & backup) const
{
    replace_file(fresh, text_of(list.lines));
    replace_file(backup, list.commands == 1 ? list.read : text_of(list.before));
    move_file(fresh, path);
}

void package_lists::add_icon(const std::string & line)
{
    read(icons, icons_path(main));
    if (icons.commands++ == 0)
        known_icons.insert(icons.lines.begin(), icons.lines.end());
    added_last = known_icons.insert(line).second;
    if (added_last)
        icons.lines.push_back(line);
}

bool package_lists::merge(const manifest_command & section)
{
    close_catalogue(main);
    read(catalogue, catalogue_path(main));
    std::optional<text_lines> merged = with_section(catalogue.lines, section.number, section.lines);
    if (!merged)
        return false;
    ++catalogue.commands;
    catalogue.before = std::exchange(catalogue.lines, std::move(*merged));
    return true;
}

void package_lists::write()
{
    if (icons.commands > 0) {
        icons.before = icons.lines;
        if (added_last)
            icons.before.pop_back();
        const std::string path = icons_path(main);
        swap_in(icons, path, path + ".new", path + ".bbb");
        icons.commands = 0;
    }
    if (catalogue.commands > 0) {
        const auto in_data = [&](const char * name) { return joined(main.data_folder, name); };
        swap_in(catalogue, catalogue_path(main), in_data("designs.new"), in_data("designs.bbb"));
        catalogue.commands = 0;
    }
}
