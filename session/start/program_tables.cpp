#include "session/start/program_tables.h"

#include "session/start/supplied_catalogue.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <array>

namespace {

// What each of them holds if anything of it is left.
struct table {
    const char * name;
    std::string_view mark;
};
constexpr std::array tables{table{"design_list", "\n["},     table{"description_list", "\n["},
                            table{"block_templates", "\n["}, table{"quick_block.ini", "\n#"},
                            table{"scatter_templates", "["}, table{"quick_scatter.ini", ":"},
                            table{"quick_matrix.ini", ":"},  table{"rotate.ini", "Grab_Height="}};

bool is_sound(const std::string & path, std::string_view mark)
{
    std::string bytes;
    if (!tried([&] { bytes = read_file(path); }))
        return false;
    return bytes.ends_with('\n') && bytes.find('\0') == std::string::npos &&
           bytes.find(mark) != std::string::npos;
}

}  // namespace

std::vector<std::string> spoiled_tables(const frmMain & main)
{
    std::vector<std::string> spoiled;
    const auto look_at = [&](std::string path, std::string_view mark) {
        if (!is_sound(path, mark))
            spoiled.push_back(std::move(path));
    };
    look_at(seed_catalogue_path(main), "Name=Match");
    for (const table & each : tables)
        look_at(joined(main.install_folder, each.name), each.mark);
    return spoiled;
}

void tell_spoiled_tables(frmMain & main)
{
    std::string names;
    for (const std::string & path : spoiled_tables(main))
        names += path + "\r\n";
    if (!names.empty())
        main.desk.message(
            "These files of the program are missing or damaged:\r\n" + names +
            "\r\nSome collages can't be made without them. Install Tessaloom again to bring them "
            "back;\r\nyour own designs, lists and photos stay as they are.");
}
