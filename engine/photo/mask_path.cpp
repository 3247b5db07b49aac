#include "engine/photo/mask_path.h"

#include "support/files/paths.h"

std::string mask_path(const std::string & name, const std::string & install_folder,
                      const std::string & data_folder)
{
    if (name.empty() || name.find("..") != std::string::npos)
        return {};
    if (name == "custom_shape.gif")
        return joined(joined(data_folder, "user_images"), name);
    if (last_separator(name) != std::string::npos)
        return joined(data_folder, name);
    return joined(joined(install_folder, "images"), name);
}

std::string found_mask(const std::string & name, const std::string & install_folder,
                       const std::string & data_folder)
{
    const std::string path = mask_path(name, install_folder, data_folder);
    if (path.empty() || last_separator(name) == std::string::npos || file_exists(path))
        return path;
    const std::string supplied = joined(install_folder, name);
    return file_exists(supplied) ? supplied : path;
}
