#include "engine/photo_steps.h"

#include "engine/resize_image.h"
#include "session/frmMain.h"
#include "support/beside.h"
#include "support/paths.h"

namespace {

// A thumbnail is done before another core has woken up.
constexpr std::int64_t small_file = 200'000;  // bytes
constexpr int small_picture = 500'000;        // pixels

bool is_small(const bitmap & image)
{
    return !image || image.width() * image.height() < small_picture;
}

template <typename Step>
auto done_where(bool is_small, frmMain & main, Step step)
{
    return is_small ? step() : beside(main.desk, std::move(step));
}

}  // namespace

bitmap load_photo(frmMain & main, const std::string & path)
{
    const std::optional<file_stamp> stamp = stamp_of(path);
    return done_where(!stamp || stamp->bytes < small_file, main,
                      [&] { return load_picture(picture_format::jpeg, path); });
}

bitmap fit_photo(frmMain & main, const bitmap & image, int width, int height)
{
    return done_where(is_small(image), main, [&] { return resize_image(image, width, height); });
}

void save_photo(frmMain & main, const bitmap & image, const std::string & path)
{
    done_where(is_small(image), main, [&] { save_jpeg(image, path); });
}
