#include "engine/photo/look_at_files.h"

#include "engine/photo/awaited_in_run.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t looked_at_together = 32;
constexpr std::size_t most_known = 4000;  // what other collages asked for doesn't stay for ever

using path_and_file = std::pair<std::string, known_file>;

bool is_known(const known_files & known, const std::string & path)
{
    const auto found = known.files.find(path);
    return found != known.files.end() && found->second.round == known.round;
}

// The file and what was known of it before.
path_and_file asked(const known_files & known, const std::string & path)
{
    const auto found = known.files.find(path);
    return {path, found == known.files.end() ? known_file{} : found->second};
}

std::vector<path_and_file> asked_together(const frmMain & main, const std::string & path)
{
    std::vector<path_and_file> files{asked(main.run.known, path)};
    const auto end = main.table.photos.begin() + std::max(main.table.last_photo + 1, 0);
    auto photo = std::find(main.table.photos.begin(), end, path);
    for (; photo != end && files.size() < looked_at_together; ++photo)
        if (*photo != path && !is_known(main.run.known, *photo))
            files.push_back(asked(main.run.known, *photo));
    return files;
}

// What is left when a stop is asked for will not be used.
std::vector<path_and_file> looked_at(std::vector<path_and_file> files, const std::stop_token & stop)
{
    for (auto & [path, file] : files) {
        if (stop.stop_requested())
            break;
        const std::optional<file_stamp> stamp = stamp_of(path);
        if (stamp != file.stamp || !stamp)
            file.size = stamp ? usable_jpeg_size(path) : std::nullopt;
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
    for (auto & [looked, file] : awaited_in_run(main, std::move(looking), std::move(stop))) {
        file.round = known.round;
        known.files[looked] = file;
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
