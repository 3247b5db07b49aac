#include "recipes/recipe_shelf.h"

#include "recipes/read_recipe.h"
#include "recipes/recipe_text.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/numbers.h"
#include "support/platform_error.h"

#include <algorithm>
#include <filesystem>

namespace {

constexpr std::size_t of_a_heading = 2000;  // bytes

std::string shelf(const std::string & data_folder)
{
    return joined(data_folder, "recipes");
}

known_folders folders_of(const frmMain & main, const std::string & here)
{
    return {.here = here, .program = main.install_folder, .data = main.data_folder};
}

std::string without_ending(const std::string & file, std::string_view ending)
{
    return file.substr(0, file.size() - ending.size());
}

// "2026-11-22_153011" for "2026-11-22 15:30:11": in the order of time, and fit for a name.
std::string name_for(const std::string & made)
{
    std::string name;
    for (const char sign : made)
        if (sign == ' ')
            name += '_';
        else if ((sign >= '0' && sign <= '9') || sign == '-')
            name += sign;
    return name.empty() ? "flurn" : name;
}

// Those of one second stand in their order as well.
std::string free_name(const std::string & folder, const std::string & wanted)
{
    constexpr int digits = 3;
    std::string name = wanted;
    for (int more = 2; file_exists(joined(folder, name + recipe_ending)); ++more)
        name = wanted + "_" + formatted(more, digits);
    return name;
}

// The names of the recipes in the folder, the oldest first.
std::vector<std::string> names_in(const std::string & folder)
{
    std::vector<std::string> names;
    for (const std::string & file : files_in(folder))
        if (file.ends_with(recipe_ending))
            names.push_back(without_ending(file, recipe_ending));
    std::ranges::sort(names);
    return names;
}

// The newest stays, whatever the clock says of it. Pictures without a recipe are of one that was being kept
// or removed when a program was killed.
void clear_shelf(const std::string & folder, const std::string & newest)
{
    std::vector<std::string> names = names_in(folder);
    std::erase(names, newest);
    const std::size_t most = most_recipes - 1;
    const std::size_t gone = names.size() > most ? names.size() - most : 0;
    for (const std::string & name :
         std::vector<std::string>(names.begin(), names.begin() + static_cast<long>(gone)))
        delete_file(joined(folder, name + recipe_ending));
    names.erase(names.begin(), names.begin() + static_cast<long>(gone));
    names.push_back(newest);
    for (const std::string & file : files_in(folder))
        if (file.ends_with(".jpg") && std::ranges::find(names, without_ending(file, ".jpg")) == names.end())
            delete_file(joined(folder, file));
}

// No more of a file is read than may be a recipe.
std::string text_of_recipe(const std::string & file)
{
    if (folder_exists(file))
        throw recipe_fault{"It is a folder, not a flurn."};
    if (!file_exists(file))
        throw platform_error(error_number::file_not_found, "There is no such file.", file);
    std::error_code failed;
    const auto bytes = std::filesystem::file_size(file, failed);
    if (!failed && bytes > largest_recipe)
        throw recipe_fault{"It is too large for a flurn."};
    return read_file(file);
}

std::string field_of(const std::vector<std::string> & lines, std::string_view key)
{
    for (const std::string & line : lines)
        if (line.starts_with(std::string(key) + "\t"))
            return line.substr(key.size() + 1);
    return {};
}

kept_recipe looked_at(const std::string & folder, const std::string & name)
{
    kept_recipe kept{.file = joined(folder, name + recipe_ending), .picture = {}, .made = {}, .design = {}};
    kept.picture = picture_beside(kept.file);
    try {
        const auto lines = lines_of_text(text_of_recipe(kept.file).substr(0, of_a_heading));
        kept.made = field_of(lines, "made");
        kept.design = field_of(lines, "design");
    } catch (const platform_error &) {
        return kept;
    } catch (const recipe_fault &) {
        return kept;
    }
    return kept;
}

}  // namespace

void keep_recipe(const frmMain & main, const recipe & made, std::string_view picture)
{
    const std::string folder = shelf(main.data_folder);
    make_folders(folder);
    const std::string name = free_name(folder, name_for(made.made));
    // The picture first: a recipe counts from the moment when it is there.
    write_file(joined(folder, name + ".jpg"), picture);
    replace_file(joined(folder, name + recipe_ending), recipe_bytes(main, made, {}));
    tried([&] { clear_shelf(folder, name); });
}

std::vector<kept_recipe> kept_recipes(const frmMain & main)
{
    const std::string folder = shelf(main.data_folder);
    std::vector<kept_recipe> kept;
    tried([&] {
        if (folder_exists(folder))
            for (const std::string & name : names_in(folder))
                kept.push_back(looked_at(folder, name));
    });
    std::ranges::reverse(kept);
    return kept;
}

std::size_t count_recipes(const std::string & data_folder)
{
    std::size_t count = 0;
    tried([&] {
        if (folder_exists(shelf(data_folder)))
            count = names_in(shelf(data_folder)).size();
    });
    return count;
}

void remove_recipe(const kept_recipe & kept)
{
    delete_file(kept.file);
    if (!kept.picture.empty())
        delete_file(kept.picture);
}

std::string preview_of(const frmMain & main, const std::string & file, const recipe & held)
{
    const std::string picture = picture_beside(file);
    std::string bytes;
    if (held.pictures_preview && !picture.empty() && folder_of(file) == shelf(main.data_folder))
        tried([&] { bytes = read_file(picture); });
    return bytes;
}

std::string picture_beside(const std::string & file)
{
    const std::string picture =
        file.ends_with(recipe_ending) ? without_ending(file, recipe_ending) + ".jpg" : std::string();
    return !picture.empty() && file_exists(picture) ? picture : std::string();
}

recipe read_recipe(const frmMain & main, const std::string & file)
{
    const std::string path = absolute_path(file);
    return recipe_of_text(text_of_recipe(path), folders_of(main, folder_of(path)));
}

std::string recipe_bytes(const frmMain & main, const recipe & held, const std::string & folder)
{
    return recipe_text(held, folders_of(main, folder));
}
