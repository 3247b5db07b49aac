#include "support/files/archive.h"

#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <archive.h>
#include <archive_entry.h>
#include <locale.h>  // the thread's locale is of the system, not of the language
#include <memory>
#include <optional>
#include <set>

namespace {

constexpr std::int64_t file_limit = std::int64_t{256} << 20;  // bytes unpacked; ours are below 1 MiB
constexpr std::size_t block_size = 1 << 16;

struct reader_closer {
    void operator()(archive * opened) const { archive_read_free(opened); }
};
using archive_reader = std::unique_ptr<archive, reader_closer>;

struct writer_closer {
    void operator()(archive * opened) const { archive_write_free(opened); }
};
using archive_writer = std::unique_ptr<archive, writer_closer>;

struct entry_closer {
    void operator()(archive_entry * made) const { archive_entry_free(made); }
};
using made_entry = std::unique_ptr<archive_entry, entry_closer>;

// The archive library tells names in the letters of the thread's locale, and loses those that it doesn't
// have.
class names_in_utf_8 {
public:
    names_in_utf_8() : letters(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr))
    {
        if (letters != nullptr)
            before = ::uselocale(letters);
    }
    names_in_utf_8(const names_in_utf_8 &) = delete;
    names_in_utf_8 & operator=(const names_in_utf_8 &) = delete;
    ~names_in_utf_8()
    {
        if (letters == nullptr)
            return;
        ::uselocale(before);
        ::freelocale(letters);
    }

private:
    locale_t letters, before = nullptr;
};

archive_reader opened_zip(const std::string & path)
{
    archive_reader reader(archive_read_new());
    archive_read_support_format_zip(reader.get());
    if (archive_read_open_filename(reader.get(), path.c_str(), block_size) != ARCHIVE_OK)
        return nullptr;
    return reader;
}

std::string entry_name(archive_entry * entry)
{
    const char * name = archive_entry_pathname_utf8(entry);
    if (name == nullptr)
        name = archive_entry_pathname(entry);
    return name == nullptr ? std::string() : std::string(name);
}

// The name as a path below a folder; nothing when it leads elsewhere. Some programs write "./" in front of
// all names, and a folder has a separator behind its name.
std::optional<std::string> path_of_entry(std::string_view name, archive_entry * entry)
{
    if (name.starts_with("./") && name.size() > 2)
        name.remove_prefix(2);
    const bool is_folder = archive_entry_filetype(entry) == AE_IFDIR;
    if (is_folder && !name.empty() && (name.back() == '/' || name.back() == '\\'))
        name.remove_suffix(1);
    const bool is_plain = archive_entry_symlink(entry) == nullptr && archive_entry_hardlink(entry) == nullptr;
    if (!is_plain || (!is_folder && archive_entry_filetype(entry) != AE_IFREG))
        return std::nullopt;
    return inner_path(name);
}

// One run over an archive.
class unpacker {
public:
    unpacker(archive * opened, const std::string & into, const unpack_limits & allowed, unpack_flush flush)
        : reader(opened),
          destination(into),
          limits(allowed),
          put_file(flush == unpack_flush::each_file ? replace_file : write_file)
    {}
    unpacking run()
    {
        archive_entry * entry = nullptr;
        int state = ARCHIVE_OK;
        // A name that can't be told in the locale is a warning: its bytes are there all the same.
        while ((state = archive_read_next_header(reader, &entry)) == ARCHIVE_OK || state == ARCHIVE_WARN) {
            const unpacking::end ended = take(entry);
            if (ended != unpacking::end::whole)
                return {.ended = ended, .entry = entry_name(entry)};
        }
        return {.ended = state == ARCHIVE_EOF ? unpacking::end::whole : unpacking::end::broken, .entry = {}};
    }

private:
    unpacking::end take(archive_entry * entry)
    {
        if (++entries > limits.entries)
            return unpacking::end::too_many;
        const std::optional<std::string> path = path_of_entry(entry_name(entry), entry);
        if (!path || !taken.insert(lower_case(*path)).second)
            return unpacking::end::not_allowed;
        const std::string target = joined(destination, *path);
        if (archive_entry_filetype(entry) == AE_IFDIR) {
            make_folders(target);
            return unpacking::end::whole;
        }
        return take_file(target);
    }
    unpacking::end take_file(const std::string & target)
    {
        std::string bytes;
        std::string chunk(block_size, '\0');
        la_ssize_t got = 0;
        while ((got = archive_read_data(reader, chunk.data(), chunk.size())) > 0) {
            bytes.append(chunk, 0, static_cast<std::size_t>(got));
            total += got;
            if (total > limits.bytes || static_cast<std::int64_t>(bytes.size()) > file_limit)
                return unpacking::end::too_large;
        }
        if (got < 0)
            return unpacking::end::broken;
        make_folders(folder_of(target));
        put_file(target, bytes);
        return unpacking::end::whole;
    }

    archive * reader;
    std::string destination;
    unpack_limits limits;
    void (*put_file)(const std::string & path, std::string_view bytes);
    int entries = 0;
    std::int64_t total = 0;
    std::set<std::string> taken;  // in lower case: on some systems the case makes no difference
};

void expect_written(la_ssize_t result)
{
    if (result < ARCHIVE_WARN)
        throw platform_error(error_number::invalid_call, "The archive can't be made.");
}

la_ssize_t add_bytes(archive *, void * all, const void * bytes, std::size_t count)
{
    static_cast<std::string *>(all)->append(static_cast<const char *>(bytes), count);
    return static_cast<la_ssize_t>(count);
}

void add_file(archive * writer, const archived_file & file)
{
    const made_entry entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), file.name.c_str());
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(file.bytes.size()));
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0644);
    expect_written(archive_write_header(writer, entry.get()));
    expect_written(archive_write_data(writer, file.bytes.data(), file.bytes.size()));
}

}  // namespace

unpacking unpack_zip(const std::string & source, const std::string & destination,
                     const unpack_limits & limits, unpack_flush flush)
{
    const names_in_utf_8 names;
    const archive_reader reader = opened_zip(source);
    if (!reader)
        return {.ended = unpacking::end::broken, .entry = {}};
    return with_platform_errors([&] { return unpacker(reader.get(), destination, limits, flush).run(); });
}

bool extract_zip(const std::string & source, const std::string & destination, unpack_flush flush)
{
    try {
        return unpack_zip(source, destination, {}, flush).ended == unpacking::end::whole;
    } catch (const platform_error &) {
        return false;
    }
}

std::string zip_bytes(const std::vector<archived_file> & files)
{
    std::string bytes;
    const archive_writer writer(archive_write_new());
    archive_write_set_format_zip(writer.get());
    archive_write_set_bytes_in_last_block(writer.get(), 1);
    expect_written(archive_write_open(writer.get(), &bytes, nullptr, add_bytes, nullptr));
    for (const archived_file & file : files)
        add_file(writer.get(), file);
    expect_written(archive_write_close(writer.get()));
    return bytes;
}
