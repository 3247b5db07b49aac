#include "intake/prepared_shelf.h"

#include "support/files/text_file.h"
#include "support/numbers.h"
#include "support/platform_error.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <vector>

namespace {

namespace fs = std::filesystem;

// Changes when copies are made another way: those made before are passed over then, and cleared in time.
constexpr std::string_view way_of_making = "1";
constexpr std::string_view shelf_name = "prepared", origin_name = "origin", going_ending = ".going";
constexpr std::size_t longest_stem = 200;
constexpr int hexadecimal = 16;

// FNV-1a, 64 bits.
std::uint64_t number_of(std::string_view text)
{
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char sign : text)
        sum = (sum ^ static_cast<std::uint8_t>(sign)) * 0x100000001B3;
    return sum;
}

std::string name_of_number(std::uint64_t number)
{
    char digits[hexadecimal];
    const auto end = std::to_chars(digits, digits + hexadecimal, number, hexadecimal).ptr;
    const std::string written(digits, end);
    return std::string(hexadecimal - written.size(), '0') + written;
}

std::optional<std::uint64_t> number_of_name(const std::string & name)
{
    std::uint64_t number = 0;
    const std::string_view digits = std::string_view(name).substr(0, hexadecimal);
    const auto [end, fault] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, hexadecimal);
    const bool is_whole = fault == std::errc{} && end == digits.data() + hexadecimal;
    return is_whole ? std::optional(number) : std::nullopt;
}

template <typename Number>
bool read_number(const std::string & text, Number & number)
{
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc{} && end == text.data() + text.size();
}

// What a copy was made of; two photos that happen to have one number are told apart by it.
std::string origin_of(const photo_identity & photo, std::size_t copy_bytes)
{
    std::string text;
    for (const std::string & field :
         {std::string(way_of_making), std::to_string(photo.stamp.bytes), std::to_string(photo.stamp.changed),
          std::to_string(copy_bytes), photo.path})
        text += field + '\n';
    return text;
}

std::uint64_t number_of_photo(const photo_identity & photo)
{
    return number_of(origin_of(photo, 0));
}

// The photo's own name, with the ending that collages take.
std::string copy_name(const photo_identity & photo)
{
    const std::string name = name_of(photo.path);
    std::size_t end = name.rfind('.');
    if (end == std::string::npos || end == 0)
        end = name.size();
    return name.substr(0, std::min(end, longest_stem)) + ".jpg";
}

std::string text_in(const std::string & path)
{
    std::string text;
    tried([&] { text = read_file(path); });
    return text;
}

void give_time(const std::string & copy, const photo_identity & photo)
{
    const std::chrono::sys_time<std::chrono::nanoseconds> changed{
        std::chrono::nanoseconds(photo.stamp.changed)};
    std::error_code ignored;
    fs::last_write_time(copy, std::chrono::file_clock::from_sys(changed), ignored);
}

struct kept_copy {
    std::string folder;
    std::uint64_t number = 0, bytes = 0;
    fs::file_time_type used{};
};

std::uint64_t bytes_in(const std::string & folder)
{
    std::uint64_t bytes = 0;
    std::error_code failed;
    for (fs::recursive_directory_iterator at(folder, failed), end; !failed && at != end;
         at.increment(failed)) {
        std::error_code gone;
        const std::uintmax_t size = at->is_regular_file(gone) ? at->file_size(gone) : 0;
        bytes += gone ? 0 : size;
    }
    return bytes;
}

std::vector<kept_copy> copies_in(const std::string & folder)
{
    std::vector<kept_copy> copies;
    for (const std::string & name : folders_in(folder)) {
        const std::optional<std::uint64_t> number = number_of_name(name);
        std::error_code gone;
        const std::string path = joined(folder, name);
        const fs::file_time_type used = fs::last_write_time(path, gone);
        if (number && !gone)
            copies.push_back({.folder = path, .number = *number, .bytes = bytes_in(path), .used = used});
    }
    std::ranges::sort(copies, {}, &kept_copy::used);
    return copies;
}

// Renamed first, so that nobody finds half of it.
void take_away(const kept_copy & copy)
{
    const bool is_going = copy.folder.ends_with(going_ending);
    const std::string going = is_going ? copy.folder : copy.folder + std::string(going_ending);
    tried([&] {
        if (!is_going) {
            remove_tree(going);
            rename_folder(copy.folder, going);
        }
        remove_tree(going);
    });
}

}  // namespace

std::optional<photo_identity> identity_of(const std::string & path)
{
    const std::optional<file_stamp> stamp = stamp_of(path);
    if (!stamp)
        return std::nullopt;
    return photo_identity{.path = absolute_path(path), .stamp = *stamp};
}

std::optional<photo_identity> origin_of_copy(const std::string & data_folder, const std::string & copy)
{
    const std::string place = folder_of(copy);
    if (folder_of(place) != joined(data_folder, shelf_name))
        return std::nullopt;
    // A path may hold ends of lines: it goes to the end.
    const std::vector<std::string> fields = split(text_in(joined(place, origin_name)), '\n', 5);
    photo_identity photo;
    if (fields.size() != 5 || !fields[4].ends_with('\n') || !read_number(fields[1], photo.stamp.bytes) ||
        !read_number(fields[2], photo.stamp.changed))
        return std::nullopt;
    photo.path = fields[4].substr(0, fields[4].size() - 1);
    return copy_name(photo) == name_of(copy) ? std::optional(photo) : std::nullopt;
}

prepared_shelf::prepared_shelf(const std::string & data_folder) : folder(joined(data_folder, shelf_name))
{
    make_folders(folder);
    fs::permissions(folder, fs::perms::owner_all);
    marks = use_marks(folder, "in_use");
}

// The folder's own time tells when it was used last.
void prepared_shelf::note_use(std::uint64_t number, const std::string & place)
{
    std::error_code ignored;
    fs::last_write_time(place, fs::file_time_type::clock::now(), ignored);
    const std::lock_guard alone(guard);
    in_use.insert(number);
}

std::optional<std::string> prepared_shelf::found(const photo_identity & photo)
{
    const std::uint64_t number = number_of_photo(photo);
    const std::string place = joined(folder, name_of_number(number));
    if (!folder_exists(place))
        return std::nullopt;
    marks.use(number);
    const std::string copy = joined(place, copy_name(photo));
    const std::optional<file_stamp> there = stamp_of(copy);
    if (!there || text_in(joined(place, origin_name)) != origin_of(photo, there->bytes))
        return std::nullopt;
    note_use(number, place);
    return copy;
}

std::string prepared_shelf::put(const photo_identity & photo, std::string_view jpeg)
{
    const std::uint64_t number = number_of_photo(photo);
    const std::string place = joined(folder, name_of_number(number));
    const std::string copy = joined(place, copy_name(photo));
    marks.use(number);
    try {
        make_folders(place);
        write_file(copy, jpeg);
        give_time(copy, photo);
        write_file(joined(place, origin_name), origin_of(photo, jpeg.size()));
    } catch (const platform_error &) {
        tried([&] { remove_tree(place); });
        throw;
    }
    note_use(number, place);
    return copy;
}

void prepared_shelf::clear_to(std::uint64_t room)
{
    const std::vector<kept_copy> copies = copies_in(folder);
    std::uint64_t all = 0;
    for (const kept_copy & copy : copies)
        all += copy.bytes;
    const std::lock_guard alone(guard);
    for (const kept_copy & copy : copies) {
        if (all <= room)
            return;
        if (in_use.contains(copy.number) || !marks.claim(copy.number))
            continue;
        take_away(copy);
        marks.release(copy.number);
        all -= copy.bytes;
    }
}
