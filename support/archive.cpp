#include "support/archive.h"

#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

#include <archive.h>
#include <archive_entry.h>
#include <filesystem>
#include <memory>

namespace {

constexpr std::int64_t entry_limit = std::int64_t{256} << 20;  // bytes unpacked; ours are below 1 MiB

struct archive_closer {
    void operator()(archive * opened) const { archive_read_free(opened); }
};
using archive_reader = std::unique_ptr<archive, archive_closer>;

archive_reader opened_zip(const std::string & path)
{
    archive_reader reader(archive_read_new());
    archive_read_support_format_zip(reader.get());
    if (archive_read_open_filename(reader.get(), path.c_str(), 1 << 16) != ARCHIVE_OK)
        return nullptr;
    return reader;
}

bool stays_inside(const std::string & name)
{
    if (name.empty() || name.find(':') != std::string::npos || name.front() == '/')
        return false;
    for (const std::filesystem::path & part : std::filesystem::path(name))
        if (part == "..")
            return false;
    return true;
}

std::string entry_name(archive_entry * entry)
{
    const char * name = archive_entry_pathname_utf8(entry);
    if (name == nullptr)
        name = archive_entry_pathname(entry);
    return name == nullptr ? std::string() : with_platform_separators(name);
}

std::string entry_bytes(archive * reader)
{
    std::string bytes;
    std::string chunk(1 << 16, '\0');
    la_ssize_t got = 0;
    while ((got = archive_read_data(reader, chunk.data(), chunk.size())) > 0) {
        bytes.append(chunk, 0, static_cast<std::size_t>(got));
        if (static_cast<std::int64_t>(bytes.size()) > entry_limit)
            throw platform_error(error_number::path_access, "A file of the archive is too large.");
    }
    if (got < 0)
        throw platform_error(error_number::path_access, "The archive is damaged.");
    return bytes;
}

void extract_entry(archive * reader, archive_entry * entry, const std::string & destination)
{
    const std::string name = entry_name(entry);
    const auto type = archive_entry_filetype(entry);
    if (!stays_inside(name) || (type != AE_IFREG && type != AE_IFDIR))
        throw platform_error(error_number::path_access, "The archive holds an entry that is not allowed.",
                             name);
    const std::string target = joined(destination, name);
    if (type == AE_IFDIR) {
        std::filesystem::create_directories(target);
        return;
    }
    std::filesystem::create_directories(folder_of(target));
    replace_file(target, entry_bytes(reader));
}

}  // namespace

bool extract_zip(const std::string & source, const std::string & destination)
{
    const archive_reader reader = opened_zip(source);
    if (!reader)
        return false;
    try {
        return with_platform_errors([&] {
            archive_entry * entry = nullptr;
            int state = ARCHIVE_OK;
            while ((state = archive_read_next_header(reader.get(), &entry)) == ARCHIVE_OK)
                extract_entry(reader.get(), entry, destination);
            return state == ARCHIVE_EOF;
        });
    } catch (const platform_error &) {
        return false;  // the caller asks only whether the unpacking went through
    }
}
