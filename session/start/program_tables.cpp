#include "session/start/program_tables.h"

#include "quick/shapes/shapes_tables.h"
#include "session/start/supplied_catalogue.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view own_shape = "custom_shape.gif";  // the user's

// What each of them holds if anything of it is left.
struct table {
    const char * name;
    std::string_view mark;
};
constexpr std::array tables{table{"design_list", "\n["},     table{"description_list", "\n["},
                            table{"block_templates", "\n["}, table{"quick_block.ini", "\n#"},
                            table{"scatter_templates", "["}, table{"quick_scatter.ini", ":"},
                            table{"quick_matrix.ini", ":"},  table{"rotate.ini", "Grab_Height="}};

std::string bytes_of(const std::string & path)
{
    std::string bytes;
    tried([&] { bytes = read_file(path); });
    return bytes;
}

bool is_table(std::string_view bytes, std::string_view mark)
{
    return bytes.ends_with('\n') && bytes.find('\0') == std::string_view::npos &&
           bytes.find(mark) != std::string_view::npos;
}

// Whole by its first and last bytes.
bool is_picture(std::string_view bytes)
{
    return (bytes.starts_with("GIF8") && bytes.ends_with(';')) ||
           (bytes.starts_with("\xFF\xD8") && bytes.ends_with("\xFF\xD9"));
}

// The shapes that photos take, and the sheet below tilted ones. Those with an "x" come in six drawings.
std::vector<std::string> needed_pictures()
{
    std::vector<std::string> names{"white.jpg"};
    for (const shape_mask & shape : shape_masks) {
        std::string name(shape.file);
        const std::size_t place = name.find("_x.");
        for (char drawn = '1'; place != std::string::npos && drawn <= '6'; ++drawn) {
            name[place + 1] = drawn;
            names.push_back(name);
        }
        if (place == std::string::npos && name != own_shape)
            names.push_back(name);
    }
    names.emplace_back(heart_mask);
    return names;
}

}  // namespace

std::vector<std::string> spoiled_tables(const frmMain & main)
{
    std::vector<std::string> spoiled;
    const auto note_unless = [&](bool is_sound, const std::string & path) {
        if (!is_sound)
            spoiled.push_back(path);
    };
    const std::string catalogue = seed_catalogue_path(main);
    note_unless(is_table(bytes_of(catalogue), "Name=Match"), catalogue);
    for (const table & each : tables) {
        const std::string path = joined(main.install_folder, each.name);
        note_unless(is_table(bytes_of(path), each.mark), path);
    }
    for (const std::string & name : needed_pictures()) {
        const std::string path = joined(joined(main.install_folder, "images"), name);
        note_unless(is_picture(bytes_of(path)), path);
    }
    return spoiled;
}

void tell_spoiled_tables(frmMain & main)
{
    constexpr std::size_t most_named = 10;
    const std::vector<std::string> spoiled = spoiled_tables(main);
    if (spoiled.empty())
        return;
    std::string names;
    for (std::size_t i = 0; i < std::min(most_named, spoiled.size()); ++i)
        names += spoiled[i] + "\r\n";
    if (spoiled.size() > most_named)
        names += "and " + std::to_string(spoiled.size() - most_named) + " more\r\n";
    main.desk.message("These files of the program are missing or damaged:\r\n" + names +
                      "\r\nSome collages can't be made without them. Install Tessaloom again to bring them "
                      "back;\r\nyour own designs, lists and photos stay as they are.");
}
