#pragma once

#include <string>

/// Where the mask of a shape lies: a bare name in `images` of the install folder, the user's own
/// "custom_shape.gif" in `user_images` of the data folder, a name with a folder in it below the data folder.
/// Empty for a name that is empty or would lead outside.
std::string mask_path(const std::string & name, const std::string & install_folder,
                      const std::string & data_folder);

/// Where the mask is: a data folder that was made by an earlier version lacks the letters that came since,
/// which are then those of the install folder. The same as `mask_path` where it is nowhere.
std::string found_mask(const std::string & name, const std::string & install_folder,
                       const std::string & data_folder);
