#include "session/start/displaced.h"

#include "designs/package/manifest.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

#include <array>

namespace {

// `designs.ini` is none of them: a start tells of that and ends.
constexpr std::array own_files{"designs.new",
                               "designs.bbb",
                               "designs.supplied",
                               "package_folders",
                               "3_1_install",
                               "4_2_install",
                               "lock",
                               "filling",
                               "icons/icons.new",
                               "icons/icons.bbb",
                               "piclists/last_photos.pls"};

void set_aside_beside(const std::string & path)
{
    std::string free = path + ".set_aside";
    for (int count = 2; file_exists(free) || folder_exists(free); ++count)
        free = path + ".set_aside_" + std::to_string(count);
    rename_folder(path, free);
}

}  // namespace

void set_displaced_aside(const frmMain & main)
{
    const auto in_data = [&](const std::string & name) { return joined(main.data_folder, name); };
    for (const char * name : own_files)
        if (folder_exists(in_data(name)))
            tried([&] { set_aside_beside(in_data(name)); });
    // Files of designs lie there under numbers that the program gives.
    for (const std::string folder : {"designs", "samples", "descriptions", "user_images"}) {
        if (!folder_exists(in_data(folder)))
            continue;
        tried([&] {
            for (const std::string & name : folders_in(in_data(folder)))
                if (is_file_of_ours(folder + "/" + name))
                    set_aside_beside(joined(in_data(folder), name));
        });
    }
}
