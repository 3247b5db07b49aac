#include "engine/photo/look_at_files.h"

#include "engine/photo/awaited_in_run.h"
#include "photos/thumbnails/found_thumbnail.h"
#include "photos/thumbnails/thumbnail_path.h"
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
    std::optional<file_stamp> counted;  // what the photo was when the photos were counted
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
    if (const auto found = counted.find(photo_path(path)); found != counted.end())
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
bool was_cut_short(const asked_file & asked, const std::string & photo, const file_stamp & stamp)
{
    return asked.counted && asked.counted != stamp && is_cut_short(photo);
}

void look_at_photo(asked_file & asked)
{
    known_file & file = asked.file;
    const bool is_usable = file.stamp && !was_cut_short(asked, asked.path, *file.stamp);
    file.size = is_usable ? usable_jpeg_size(asked.path) : std::nullopt;
}

// A preview shows what the poster will have: a photo that is gone has no thumbnail any more, whatever lies
// there still, and what became of its thumbnail is no fault of the photo's.
void look_at_thumbnail(asked_file & asked, const std::string & photo)
{
    known_file & file = asked.file;
    file.size.reset();
    file.stand_in.clear();
    if (!file.photo || was_cut_short(asked, photo, *file.photo))
        return;
    const small_photo found = found_thumbnail(photo);
    file.stand_in = found.path == photo ? photo : std::string();
    file.size = found.size;
    file.photo = found.photo;
    file.stamp = stamp_of(asked.path);
}

void look_at(asked_file & asked)
{
    known_file & file = asked.file;
    const std::string photo = photo_path(asked.path);
    const bool has_thumbnail = photo != asked.path;
    const known_file before = file;
    file.stamp = stamp_of(asked.path);
    file.photo = has_thumbnail ? stamp_of(photo) : std::nullopt;
    if (before.round >= 0 && file.stamp == before.stamp && file.photo == before.photo)
        return;
    if (has_thumbnail)
        look_at_thumbnail(asked, photo);
    else
        look_at_photo(asked);
}

// What is left when a stop is asked for will not be used. Where thumbnails are missing, each takes its time.
std::vector<asked_file> looked_at(std::vector<asked_file> files, const std::stop_token & stop,
                                  const idle_workers & others)
{
    others.share(static_cast<int>(files.size()), [&](int i) {
        if (!stop.stop_requested())
            look_at(files[static_cast<std::size_t>(i)]);
    });
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
        [files = asked_together(main, path), token = stop.get_token(), others = main.workers.idle()] {
            return looked_at(files, token, others);
        });
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
