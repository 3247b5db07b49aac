#pragma once

#include "support/files/paths.h"
#include "support/files/use_marks.h"

#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>

/// The copies of photos that were prepared for collages, in `prepared` of the data folder. A copy is found
/// again by the path, size and time of its photo, and keeps the photo's name and time. Each lies in a folder
/// of its own, which others may put its thumbnail into.

/// One state of a photo.
struct photo_identity {
    std::string path;  ///< absolute
    file_stamp stamp;
};

/// The photo as it is now; nothing when it isn't there.
std::optional<photo_identity> identity_of(const std::string & path);

/// The photo that this copy was made of, as it was then; nothing for a file that is none of the copies in
/// that data folder.
std::optional<photo_identity> origin_of_copy(const std::string & data_folder, const std::string & copy);

/// Room for copies, in bytes, unless the user says otherwise.
inline constexpr std::uint64_t usual_room = std::uint64_t{2} << 30U;

class prepared_shelf {
public:
    /// Makes the folder when it is missing. Raises 61, 70, 75, 76.
    explicit prepared_shelf(const std::string & data_folder);

    /// The copy of that state of the photo, whole; nothing when there is none. It isn't cleared away by
    /// anyone as long as this shelf lives. Safe from several threads, as `put` is.
    std::optional<std::string> found(const photo_identity & photo);

    /// Keeps a copy, in one step, and gives its path. Raises 61, 70, 75, 76; nothing is left then.
    std::string put(const photo_identity & photo, std::string_view jpeg);

    /// Clears away those copies that nobody uses and that were used last the longest ago, until all together
    /// have that room. Copies in use stay, whatever room they take.
    void clear_to(std::uint64_t room);

private:
    void note_use(std::uint64_t number, const std::string & folder);

    std::string folder;
    use_marks marks;
    std::mutex guard;
    std::set<std::uint64_t> in_use;
};
