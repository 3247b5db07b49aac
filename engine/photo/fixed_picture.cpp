#include "engine/photo/fixed_picture.h"

#include "support/files/paths.h"

#include <cctype>

namespace {

bool has_drive(const std::string & file)
{
    return file.size() > 2 && std::isalpha(static_cast<unsigned char>(file[0])) != 0 && file[1] == ':' &&
           last_separator(file.substr(2, 1)) == 0;
}

bool climbs(const std::string & file)
{
    const std::string path = path_separator + with_platform_separators(file) + path_separator;
    return path.find(std::string{path_separator, '.', '.', path_separator}) != std::string::npos;
}

}  // namespace

std::optional<std::string> fixed_picture_path(const frmMain & main, const std::string & file)
{
    if (has_drive(file) || climbs(file))
        return std::nullopt;
    return joined(is_under(file, "images") ? main.install_folder : main.data_folder, file);
}
