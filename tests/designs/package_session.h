#pragma once

#include "tests/designs/own_designs.h"
#include "tests/small_files.h"

#include <filesystem>
#include <map>

/// Every file and link below a folder, with its bytes; of a folder the name alone.
using folder_image = std::map<std::string, std::string>;

inline folder_image image_of(const std::string & folder)
{
    namespace fs = std::filesystem;
    folder_image image;
    for (const auto & entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        image[name] = entry.is_symlink()        ? "-> " + fs::read_symlink(entry.path()).string()
                      : entry.is_regular_file() ? read_file(entry.path().string())
                                                : "folder";
    }
    return image;
}

inline constexpr const char * hearts_imported = "\r\nHearts has been successfully imported.\r\n";

/// A session that is handed packages.
struct package_session : own_designs_session {
    package_session()
    {
        catalogue("[Design601]\r\nName=a\r\n\r\n[Design603]\r\nName=c\r\n\r\n[Design605]\r\nName=e\r\n");
        folder.write("data/icons/icons", "star star.bmp\r\n");
    }
    /// The user chooses that package; gives its path.
    std::string import_entries(const std::vector<zip_entry> & entries)
    {
        const std::string path = folder.write("package.zip", stored_zip(entries));
        desk.will_choose_file(path);
        main.mnuImport.click();
        return path;
    }
    /// A package of that manifest and files named by six letters.
    std::string import_manifest(const std::string & manifest, std::vector<zip_entry> files = {})
    {
        files.insert(files.begin(), {.name = "manifest", .bytes = manifest});
        return import_entries(files);
    }
};
