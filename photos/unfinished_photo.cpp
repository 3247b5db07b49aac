#include "photos/unfinished_photo.h"

#include "support/files/paths.h"
#include "support/jpeg_end.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>

namespace {

// The clock of a share far away may be a little ahead.
bool was_changed_just_now(const file_stamp & stamp)
{
    using namespace std::chrono;
    const std::int64_t now = duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
    return std::abs(now - stamp.changed) < nanoseconds(minutes(1)).count();
}

}  // namespace

bool is_unfinished(const std::string & photo)
{
    const std::optional<file_stamp> stamp = stamp_of(photo);
    if (!stamp || !was_changed_just_now(*stamp))
        return false;
    // The mark is sooner told than the end of the data; what a camera adds behind it makes nothing worse.
    return stamp->bytes == 0 || (!has_mark_of_end(photo) && is_cut_short(photo));
}
