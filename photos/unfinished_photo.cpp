#include "photos/unfinished_photo.h"

#include "support/files/paths.h"
#include "support/jpeg_end.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <fstream>

namespace {

// The clock of a share far away may be a little ahead.
bool was_changed_just_now(const file_stamp & stamp)
{
    using namespace std::chrono;
    const std::int64_t now = duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
    return std::abs(now - stamp.changed) < nanoseconds(minutes(1)).count();
}

// Sooner told than by decoding; what a camera adds behind it makes nothing worse than that.
bool has_mark_of_end(const std::string & photo)
{
    std::ifstream file(photo, std::ios::binary);
    file.seekg(-2, std::ios::end);
    return file.get() == 0xFF && file.get() == 0xD9;
}

}  // namespace

bool is_unfinished(const std::string & photo)
{
    const std::optional<file_stamp> stamp = stamp_of(photo);
    if (!stamp || !was_changed_just_now(*stamp))
        return false;
    return stamp->bytes == 0 || (!has_mark_of_end(photo) && is_cut_short(photo));
}
