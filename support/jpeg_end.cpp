#include "support/jpeg_end.h"

#include <csetjmp>
#include <cstdio>
#include <fstream>
#include <jerror.h>
#include <jpeglib.h>
#include <memory>
#include <vector>

namespace {

// The decoder fills up what is missing, and says so in two steps: that the file ends, and that it would need
// more than it has.
struct looked_through {
    jpeg_decompress_struct photo{};
    jpeg_error_mgr errors{};
    std::jmp_buf refused{};
    bool has_ended = false, needs_more = false, was_refused = false;

    explicit looked_through(std::FILE * file)
    {
        photo.client_data = this;
        photo.err = jpeg_std_error(&errors);
        errors.error_exit = [](j_common_ptr of) {
            std::longjmp(static_cast<looked_through *>(of->client_data)->refused, 1);
        };
        errors.emit_message = [](j_common_ptr of, int level) {
            if (level < 0)
                static_cast<looked_through *>(of->client_data)->note(of->err->msg_code);
        };
        jpeg_create_decompress(&photo);
        jpeg_stdio_src(&photo, file);
    }
    looked_through(const looked_through &) = delete;
    looked_through & operator=(const looked_through &) = delete;
    ~looked_through() { jpeg_destroy_decompress(&photo); }

    void note(int warning)
    {
        has_ended = has_ended || warning == JWRN_JPEG_EOF;
        needs_more = needs_more || warning == JWRN_HIT_MARKER;
    }
    // A file that can't be decoded at all is left to those who want its pixels.
    void read_all(std::vector<JSAMPLE> & row)
    {
        if (setjmp(refused) != 0) {
            was_refused = true;
            return;
        }
        jpeg_read_header(&photo, TRUE);
        photo.scale_num = 1;
        photo.scale_denom = 8;  // the pixels are of no interest
        jpeg_start_decompress(&photo);
        row.resize(static_cast<std::size_t>(photo.output_width) *
                   static_cast<std::size_t>(photo.output_components));
        JSAMPROW rows[] = {row.data()};
        while (photo.output_scanline < photo.output_height)
            jpeg_read_scanlines(&photo, rows, 1);
    }
};

bool has_mark_of_start(std::FILE * file)
{
    const int first = std::fgetc(file), second = std::fgetc(file);
    std::rewind(file);
    return first == 0xFF && second == 0xD8;
}

}  // namespace

bool is_cut_short(const std::string & path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file || !has_mark_of_start(file.get()))
        return false;
    std::vector<JSAMPLE> row;
    looked_through photo(file.get());
    photo.read_all(row);
    return photo.has_ended && (photo.needs_more || photo.was_refused);
}

bool has_mark_of_end(const std::string & path)
{
    std::ifstream file(path, std::ios::binary);
    file.seekg(-2, std::ios::end);
    return file.get() == 0xFF && file.get() == 0xD9;
}
