#include "engine/pixels/resize_image.h"
#include "photos/scaled_jpeg.h"
#include "tests/fuzz/fuzz_session.h"
#include "tests/fuzz/fuzzed.h"

#include <algorithm>
#include <cstdlib>

// A photo: what the reader of rows accepts has to be what the image library makes of the file, loaded and
// scaled.

namespace {

constexpr unsigned most_pixels = 1'000'000;

// A few bytes can claim a picture that takes minutes, for the library as well.
bool claims_too_much(const std::uint8_t * bytes, std::size_t count)
{
    for (std::size_t i = 0; i + 8 < count; ++i) {
        const bool frame = bytes[i] == 0xFF && bytes[i + 1] >= 0xC0 && bytes[i + 1] <= 0xCF;
        const unsigned height = bytes[i + 5] * 256U + bytes[i + 6],
                       width = bytes[i + 7] * 256U + bytes[i + 8];
        if (frame && width * height > most_pixels)
            return true;
    }
    return false;
}

void expect_same(const bitmap & read, const bitmap & expected)
{
    if (read.width() != expected.width() || read.height() != expected.height())
        std::abort();
    for (int y = 0; y < read.height(); ++y)
        if (!std::ranges::equal(channels(read.row(y)), channels(expected.row(y))))
            std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    if (count == 0 || claims_too_much(bytes, count))
        return 0;
    const fuzz_session & session = session_of_process();
    session.write("photo.jpg", fuzzed_text(bytes, count));
    static photo_memory memory;
    const std::optional<bitmap> read = read_jpeg(session.at("photo.jpg"), memory.reading);
    const picture_size place{.width = bytes[count - 1] + 1, .height = bytes[count / 2] + 1};
    const std::optional<bitmap> fitted = read_fitted_jpeg(session.at("photo.jpg"), place, memory);
    if (fitted && !read)
        std::abort();
    if (!read)
        return 0;
    expect_same(*read, load_picture(picture_format::jpeg, session.at("photo.jpg")));
    if (fitted)
        expect_same(*fitted, resize_image(*read, place.width, place.height));
    return 0;
}
