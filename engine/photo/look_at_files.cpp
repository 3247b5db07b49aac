#include "engine/photo/look_at_files.h"

#include "engine/photo/awaited_in_run.h"
#include "support/jpeg_end.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t looked_at_together = 32;
constexpr std::size_t most_known = 4000;  // what other collages asked for doesn't stay for ever

// A file on its way to be looked at and back.
struct asked_file {
    std::string path;
    known_file file;                    // what was known of it before
    std::optional<file_stamp> counted;  // what it was when the photos were counted
};

bool is_known(const known_files & known, const std::string & path)
{
    const auto found = known.files.find(path);
    return found != known.files.end() && found->second.round == known.round;
}

asked_file asked(const frmMain & main, const std::string & path)
{
    asked_file file{.path = path, .file = {}, .counted = {}};
    const auto & known = main.run.known.files;
    const counted_files & counted = main.thumbnails.counted;
    if (const auto found = known.find(path); found != known.end())
        file.file = found->second;
    if (const auto found = counted.find(path); found != counted.end())
        file.counted = found->second;
    return file;
}

std::vector<asked_file> asked_together(const frmMain & main, const std::string & path)
{
    std::vector<asked_file> files{asked(main, path)};
    const auto end = main.table.photos.begin() + std::max(main.table.last_photo + 1, 0);
    auto photo = std::find(main.table.photos.begin(), end, path);
    for (; photo != end && files.size() < looked_at_together; ++photo)
        if (*photo != path && !is_known(main.run.known, *photo))
            files.push_back(asked(main, *photo));
    return files;
}

// A photo that was cut short since it was counted would fill its place with grey; one that always was so is
// taken as it is.
std::optional<picture_size> usable_size(const asked_file & asked, const file_stamp & stamp)
{
    const bool has_changed = asked.counted && asked.counted != stamp;
    return has_changed && is_cut_short(asked.path) ? std::nullopt : usable_jpeg_size(asked.path);
}

// What is left when a stop is asked for will not be used.
std::vector<asked_file> looked_at(std::vector<asked_file> files, const std::stop_token & stop)
{
    for (asked_file & asked : files) {
        if (stop.stop_requested())
            break;
        known_file & file = asked.file;
        const std::optional<file_stamp> stamp = stamp_of(asked.path);
        if (stamp != file.stamp || !stamp)
            file.size = stamp ? usable_size(asked, *stamp) : std::nullopt;
        file.stamp = stamp;
    }
    return files;
}

}  // namespace

void look_anew(frmMain & main)
{
    known_files & known = main.run.known;
    ++known.round;
    if (known.files.size() > most_known)
        known.files.clear();
}

const known_file & file_of(frmMain & main, const std::string & path)
{
    known_files & known = main.run.known;
    if (is_known(known, path))
        return known.files.at(path);
    std::stop_source stop;
    auto looking = main.workers.begin_at_once(
        [files = asked_together(main, path), token = stop.get_token()] { return looked_at(files, token); });
    for (asked_file & looked : awaited_in_run(main, std::move(looking), std::move(stop))) {
        looked.file.round = known.round;
        known.files[looked.path] = looked.file;
    }
    return known.files.at(path);
}

void forget_file(frmMain & main, const std::string & path)
{
    main.run.known.files.erase(path);
}

std::optional<picture_size> size_of_photo(frmMain & main, const std::string & path)
{
    return file_of(main, path).size;
}
