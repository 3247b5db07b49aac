#include "intake/color_profile.h"
#include "intake/jpeg_header.h"
#include "intake/picture_kind.h"

#include <cstdlib>

// What is read of a strange photo in the programs themselves: its beginning.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    const byte_view file(bytes, count);
    kind_of(file, "photo.nef");
    notes_of_exif(file);
    notes_of_exif(exif_of_png(file));
    notes_of_exif(exif_of_webp(file));
    place_of_orientation(file);
    is_srgb(file);
    if (const auto header = read_jpeg_header(file)) {
        is_srgb(bytes_of_text(header->profile));
        if (end_of_picture(file, *header) > count)
            std::abort();
        const auto bare = read_jpeg_header(bytes_of_text(without_remarks(file).value()));
        if (!bare || bare->has_remarks || bare->size != header->size)
            std::abort();
    }
    return 0;
}
