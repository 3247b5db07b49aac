#include "intake/gathered.h"

#include "intake/look.h"
#include "photos/lists/pls_line.h"
#include "photos/name_order.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>

namespace {

using photos = std::vector<intake_photo>;

bool is_passed_over(const std::string & folder)
{
    std::error_code ignored;
    const std::string name = name_of(folder);
    return name.starts_with('.') || name == "sample_thumbs" || std::filesystem::is_symlink(folder, ignored);
}

void add(photos & all, photos more)
{
    std::ranges::move(more, std::back_inserter(all));
}

void add_refused(photos & all, const std::string & path, const platform_error & error)
{
    all.push_back({.path = path, .why = error.what()});
}

void add_folder(photos & all, const std::string & folder, walk how)
{
    try {
        add(all, looked_at_folder(folder));
        if (how == walk::all_folders)
            for (const std::string & name : in_name_order(folders_in(folder)))
                if (const std::string inner = joined(folder, name); !is_passed_over(inner))
                    add_folder(all, inner, how);
    } catch (const platform_error & error) {
        add_refused(all, folder, error);
    }
}

void add_list(photos & all, const std::string & list)
{
    try {
        for (const std::string & line : lines_of_file(list))
            if (const std::string photo = photo_of_line(line); !photo.empty())
                all.push_back(looked_at(absolute_path(photo)));
    } catch (const platform_error & error) {
        add_refused(all, list, error);
    }
}

// FNV-1a over the file, in pieces; 0 for one that can't be read.
std::uint64_t sum_of_file(const std::string & path)
{
    std::ifstream file(path, std::ios::binary);
    std::uint64_t sum = file ? 0xCBF29CE484222325 : 0;
    std::string piece(1 << 16, '\0');
    while (file) {
        file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        for (std::streamsize i = 0; i < file.gcount(); ++i)
            sum = (sum ^ static_cast<std::uint8_t>(piece[static_cast<std::size_t>(i)])) * 0x100000001B3;
    }
    return sum;
}

bool have_same_bytes(const std::string & path, const std::string & other)
{
    std::ifstream file(path, std::ios::binary), second(other, std::ios::binary);
    return file && second &&
           std::equal(std::istreambuf_iterator<char>(file), {}, std::istreambuf_iterator<char>(second), {});
}

// Only files of one size are read at all.
class double_finder {
public:
    explicit double_finder(const photos & all)
    {
        for (const intake_photo & photo : all)
            if (const auto stamp = stamp_of(photo.path))
                ++of_size[stamp->bytes];
    }
    // The path of an earlier file that has the same bytes; empty for the first one.
    std::string earlier(const std::string & path)
    {
        const auto stamp = stamp_of(path);
        if (!stamp || of_size[stamp->bytes] < 2)
            return {};
        std::vector<std::string> & alike = seen[{stamp->bytes, sum_of_file(path)}];
        const auto same = std::ranges::find_if(
            alike, [&](const std::string & other) { return have_same_bytes(path, other); });
        if (same != alike.end())
            return *same;
        alike.push_back(path);
        return {};
    }

private:
    std::map<std::uint64_t, int> of_size;
    std::map<std::pair<std::uint64_t, std::uint64_t>, std::vector<std::string>> seen;
};

}  // namespace

std::vector<intake_photo> gathered(const std::vector<std::string> & paths, walk how)
{
    photos all;
    for (const std::string & given : paths) {
        const std::string path = absolute_path(given);
        if (folder_exists(path))
            add_folder(all, path, how);
        else if (lower_case(path).ends_with(".pls"))
            add_list(all, path);
        else
            all.push_back(looked_at(path));
    }
    return all;
}

std::vector<double_photo> taken_out_doubles(std::vector<intake_photo> & all)
{
    std::vector<double_photo> doubles;
    double_finder finder(all);
    std::erase_if(all, [&](const intake_photo & photo) {
        const std::string first = photo.need == photo_need::refusal ? "" : finder.earlier(photo.path);
        if (!first.empty())
            doubles.push_back({.path = photo.path, .first = first});
        return !first.empty();
    });
    return doubles;
}
