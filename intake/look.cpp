#include "intake/look.h"

#include "intake/color_profile.h"
#include "intake/decoder_answer.h"
#include "intake/jpeg_header.h"
#include "photos/name_order.h"
#include "support/files/paths.h"

#include <algorithm>
#include <fstream>

namespace {

constexpr int side_limit = 32'768;

// Reads where it is told to; a file that shrinks meanwhile just ends there.
file_reader reader_of(std::ifstream & file)
{
    return [&file](std::size_t at, std::size_t count) {
        std::string bytes(count, '\0');
        file.clear();
        file.seekg(static_cast<std::streamoff>(at));
        file.read(bytes.data(), static_cast<std::streamsize>(count));
        bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
        return bytes;
    };
}

bool colors_fit(const jpeg_header & header)
{
    if (header.precision != 8 || (header.components != 1 && header.components != 3))
        return false;
    return header.profile.empty() ? !header.notes.is_adobe_rgb : is_srgb(bytes_of_text(header.profile));
}

bool has_collage_name(const std::string & path)
{
    return lower_case(path).ends_with(".jpg");
}

intake_photo refused(intake_photo photo, const std::string & why)
{
    photo.need = photo_need::refusal;
    photo.why = why;
    return photo;
}

intake_photo looked_at_jpeg(intake_photo photo, const file_reader & read)
{
    const std::optional<jpeg_header> header = read_jpeg_header(read);
    if (!header || header->size.width == 0 || header->size.height == 0)
        return refused(std::move(photo), told(decode_fault::damaged));
    if (header->size.width >= side_limit || header->size.height >= side_limit)
        return refused(std::move(photo), told(decode_fault::too_large));
    const bool on_its_side = header->notes.orientation >= 5;
    photo.size =
        on_its_side ? picture_size{.width = header->size.height, .height = header->size.width} : header->size;
    if (header->notes.orientation != 1 || !colors_fit(*header))
        photo.need = photo_need::decoding;
    else
        photo.need = has_collage_name(photo.path) ? photo_need::nothing : photo_need::copy;
    if (photo.need == photo_need::nothing)
        photo.ready = photo.path;
    return photo;
}

bool is_photo(const intake_photo & photo)
{
    return photo.kind != picture_kind::none || has_picture_name(photo.path);
}

}  // namespace

intake_photo looked_at(const std::string & path)
{
    intake_photo photo{.path = path};
    if (!file_exists(path))
        return refused(std::move(photo), "there is no such file");
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return refused(std::move(photo), "it can't be read");
    const file_reader read = reader_of(file);
    const std::string head = read(0, telling_bytes);
    photo.kind = kind_of(bytes_of_text(head), path);
    if (photo.kind == picture_kind::none)
        return refused(std::move(photo), head.empty() ? "it is empty" : "it is no picture");
    if (photo.kind == picture_kind::jpeg)
        return looked_at_jpeg(std::move(photo), read);
    photo.need = photo_need::decoding;
    return photo;
}

std::vector<intake_photo> looked_at_folder(const std::string & folder)
{
    std::vector<intake_photo> photos;
    for (const std::string & name : in_name_order(files_in(folder)))
        if (!name.starts_with('.'))
            if (intake_photo photo = looked_at(folder + path_separator + name); is_photo(photo))
                photos.push_back(std::move(photo));
    return photos;
}

std::size_t count_of_needing(const std::vector<intake_photo> & photos)
{
    return static_cast<std::size_t>(std::ranges::count_if(photos, [](const intake_photo & photo) {
        return photo.need == photo_need::copy || photo.need == photo_need::decoding;
    }));
}
