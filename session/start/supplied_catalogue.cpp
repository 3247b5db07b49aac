#include "session/start/supplied_catalogue.h"

#include "designs/catalogue/supplied_designs.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

namespace {

std::string kept_path(const frmMain & main, std::string_view name)
{
    return joined(main.data_folder, name);
}

text_lines supplied_last(const frmMain & main)
{
    const std::string path = kept_path(main, supplied_catalogue);
    return file_exists(path) ? lines_of_file(path) : text_lines();
}

}  // namespace

std::string seed_catalogue_path(const frmMain & main)
{
    const std::string copy = joined(main.install_folder, "designs.seed");
    return file_exists(copy) ? copy : joined(main.install_folder, "designs.ini");
}

text_lines newer_catalogue(const frmMain & main, const text_lines & own)
{
    const text_lines now = lines_of_file(seed_catalogue_path(main)), last = supplied_last(main);
    return now == last ? own : with_supplied(own, last, now);
}

void take_newer_designs(const frmMain & main)
{
    const std::string seed = read_file(seed_catalogue_path(main)),
                      noted = kept_path(main, supplied_catalogue);
    if (file_exists(noted) && read_file(noted) == seed)
        return;
    const std::string path = kept_path(main, "designs.ini");
    const text_lines own = lines_of_file(path);
    if (const text_lines newer = newer_catalogue(main, own); newer != own)
        replace_file(path, text_of(newer));
    replace_file(noted, seed);
}
