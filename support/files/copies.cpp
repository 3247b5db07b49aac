#include "support/files/copies.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <filesystem>

namespace fs = std::filesystem;

void copy_file(const std::string & from, const std::string & to)
{
    replace_file(to, read_file(from));
}

void copy_folder(const std::string & from, const std::string & to)
{
    with_platform_errors([&] {
        make_folders(to);
        for (const auto & entry : fs::recursive_directory_iterator(from)) {
            const fs::path target = fs::path(to) / entry.path().lexically_relative(from);
            if (entry.is_directory())
                make_folders(target.string());
            else
                copy_file(entry.path().string(), target.string());
        }
    });
}
