#include "session/displaced.h"

#include "support/paths.h"
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

struct numbered_names {
    const char *folder, *end;
};
constexpr std::array numbered_files{numbered_names{"designs", ""}, numbered_names{"samples", ".jpg"},
                                    numbered_names{"descriptions", ""}};

// "saved602" and what ends it.
bool is_numbered(std::string_view name, std::string_view end)
{
    constexpr std::string_view start = "saved";
    if (!name.starts_with(start) || !name.ends_with(end) || name.size() <= start.size() + end.size())
        return false;
    name.remove_prefix(start.size());
    name.remove_suffix(end.size());
    return name.find_first_not_of("0123456789") == std::string_view::npos;
}

void set_aside_beside(const std::string & path)
{
    std::string free = path + ".set_aside";
    for (int count = 2; file_exists(free) || folder_exists(free); ++count)
        free = path + ".set_aside_" + std::to_string(count);
    rename_folder(path, free);
}

template <typename Step>
void quietly(Step step)
{
    try {
        step();
    } catch (const platform_error &) {
        return;
    }
}

}  // namespace

void set_displaced_aside(const frmMain & main)
{
    const auto in_data = [&](const char * name) { return joined(main.data_folder, name); };
    for (const char * name : own_files)
        if (folder_exists(in_data(name)))
            quietly([&] { set_aside_beside(in_data(name)); });
    for (const numbered_names & known : numbered_files) {
        if (!folder_exists(in_data(known.folder)))
            continue;
        quietly([&] {
            for (const std::string & name : folders_in(in_data(known.folder)))
                if (is_numbered(name, known.end))
                    set_aside_beside(joined(in_data(known.folder), name));
        });
    }
}
