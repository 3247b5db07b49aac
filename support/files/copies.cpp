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

namespace {

template <typename Copy>
void copy_each(const std::string & from, const std::string & to, Copy copy)
{
    with_platform_errors([&] {
        make_folders(to);
        for (const auto & entry : fs::recursive_directory_iterator(from)) {
            const fs::path target = fs::path(to) / entry.path().lexically_relative(from);
            if (entry.is_directory())
                make_folders(target.string());
            else
                copy(entry.path().string(), target.string());
        }
    });
}

}  // namespace

void fill_folder(const std::string & from, const std::string & to, const std::function<void()> & copied)
{
    copy_each(from, to, [&](const std::string & file, const std::string & target) {
        write_file(target, read_file(file));
        copied();
    });
}

void copy_folder(const std::string & from, const std::string & to)
{
    copy_each(from, to, copy_file);
}
