#include "support/jpeg_rows.h"

#include "support/platform_error.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <jpeglib.h>

namespace {

// Large enough that the decoder is seldom near the end of what is there, where it reads bit by bit.
constexpr std::size_t input_size = 262'144;
constexpr JDIMENSION side_limit = 32768;
constexpr int band_room = 4;  // rows; the decoder gives no more at a time

std::size_t width_of(picture_size size)
{
    return static_cast<std::size_t>(size.width);
}

struct file_closer {
    void operator()(std::FILE * file) const { std::fclose(file); }
};
using open_file = std::unique_ptr<std::FILE, file_closer>;

// A pipe would be emptied by the first of two readers.
open_file opened(const std::string & path)
{
    std::error_code fault;
    if (!std::filesystem::is_regular_file(path, fault))
        return nullptr;
    open_file file(std::fopen(path.c_str(), "rb"));
    if (file)
        std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

bool is_of_a_kind_known(const jpeg_decompress_struct & photo)
{
    const bool grey = photo.jpeg_color_space == JCS_GRAYSCALE && photo.num_components == 1;
    const bool colored = (photo.jpeg_color_space == JCS_YCbCr || photo.jpeg_color_space == JCS_RGB) &&
                         photo.num_components == 3;
    return (grey || colored) && photo.data_precision == 8 && photo.image_width < side_limit &&
           photo.image_height < side_limit;
}

// What the library sets for a load without flags, but for the order of the channels, which it changes
// afterwards.
void choose_settings(jpeg_decompress_struct & photo)
{
    photo.dct_method = JDCT_IFAST;
    photo.do_fancy_upsampling = FALSE;
    photo.out_color_space = JCS_EXT_BGR;
}

}  // namespace

// The decoder's own record and what its callbacks need; they find it behind `client_data`.
struct jpeg_rows::decoding {
    jpeg_decompress_struct photo{};
    jpeg_error_mgr errors{};
    jpeg_source_mgr source{};
    std::jmp_buf refused{};
    open_file file;
    std::vector<std::uint8_t> & input;

    decoding(open_file from, std::vector<std::uint8_t> & memory) : file(std::move(from)), input(memory)
    {
        input.resize(input_size);
        photo.client_data = this;
        photo.err = jpeg_std_error(&errors);
        errors.error_exit = refuse;
        errors.emit_message = refuse_at_warning;
        errors.output_message = [](j_common_ptr) {};
    }
    ~decoding() { jpeg_destroy_decompress(&photo); }
    decoding(const decoding &) = delete;
    decoding & operator=(const decoding &) = delete;

    // Both leave the decoder by a jump, so no frame between here and setjmp may own anything.
    [[noreturn]] static void refuse(j_common_ptr photo)
    {
        std::longjmp(static_cast<decoding *>(photo->client_data)->refused, 1);
    }
    static void refuse_at_warning(j_common_ptr photo, int level)
    {
        if (level < 0)
            refuse(photo);
    }

    void open_source()
    {
        source.init_source = [](j_decompress_ptr) {};
        source.fill_input_buffer = fill;
        source.skip_input_data = skip;
        source.resync_to_restart = jpeg_resync_to_restart;
        source.term_source = [](j_decompress_ptr) {};
        photo.src = &source;
    }

    // The file's end comes too early when more is asked for.
    static boolean fill(j_decompress_ptr photo)
    {
        decoding & own = *static_cast<decoding *>(photo->client_data);
        const std::size_t count = std::fread(own.input.data(), 1, own.input.size(), own.file.get());
        if (count == 0)
            refuse(reinterpret_cast<j_common_ptr>(photo));
        own.source.next_input_byte = own.input.data();
        own.source.bytes_in_buffer = count;
        return TRUE;
    }
    static void skip(j_decompress_ptr photo, long count)
    {
        jpeg_source_mgr & source = *photo->src;
        std::size_t left = count > 0 ? static_cast<std::size_t>(count) : 0;
        while (left > source.bytes_in_buffer) {
            left -= source.bytes_in_buffer;
            fill(photo);
        }
        source.next_input_byte += left;
        source.bytes_in_buffer -= left;
    }

    // Each step is false where the decoder refuses; that jumps back into it.
    bool begin()
    {
        if (setjmp(refused) != 0)
            return false;
        jpeg_create_decompress(&photo);
        open_source();
        if (jpeg_read_header(&photo, TRUE) != JPEG_HEADER_OK || !is_of_a_kind_known(photo))
            return false;
        choose_settings(photo);
        return jpeg_start_decompress(&photo) == TRUE && photo.output_components == sizeof(pixel);
    }
    int read(JSAMPARRAY rows)
    {
        if (setjmp(refused) != 0)
            return 0;
        return static_cast<int>(jpeg_read_scanlines(&photo, rows, band_room));
    }
    bool finish()
    {
        if (setjmp(refused) != 0)
            return false;
        return jpeg_finish_decompress(&photo) == TRUE;
    }
};

jpeg_rows::jpeg_rows(const std::string & path, jpeg_memory & kept) : memory(kept)
{
    open_file file = opened(path);
    if (!file)
        return;
    state = std::make_unique<decoding>(std::move(file), memory.input);
    if (!state->begin()) {
        refuse();
        return;
    }
    own_size = {.width = static_cast<int>(state->photo.output_width),
                .height = static_cast<int>(state->photo.output_height)};
    memory.rows.resize(
        std::max(memory.rows.size(), width_of(own_size) * band_room + room_behind / sizeof(pixel) + 1));
}

jpeg_rows::~jpeg_rows() = default;

void jpeg_rows::refuse()
{
    state.reset();
}

bool jpeg_rows::read_band()
{
    std::array<JSAMPROW, band_room> rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = channels(std::span(memory.rows).subspan(i * width_of(own_size))).data();
    taken = 0;
    band = state->read(rows.data());
    if (band == 0)
        refuse();
    return band > 0;
}

std::span<const pixel> jpeg_rows::next()
{
    if (!state ||
        (taken == band && (state->photo.output_scanline >= state->photo.output_height || !read_band())))
        return {};
    const std::size_t width = width_of(own_size);
    return {memory.rows.data() + static_cast<std::size_t>(taken++) * width, width};
}

bool jpeg_rows::is_sound()
{
    if (state && !state->finish())
        refuse();
    return static_cast<bool>(state);
}

std::optional<bitmap> read_jpeg(const std::string & path, jpeg_memory & memory)
{
    jpeg_rows photo(path, memory);
    if (!photo)
        return std::nullopt;
    const picture_size size = photo.size();
    bitmap image(size.width, size.height);
    for (int y = size.height - 1; y >= 0; --y) {
        const std::span<const pixel> row = photo.next();
        if (row.empty())
            return std::nullopt;
        std::ranges::copy(row, image.row(y).begin());
    }
    return photo.is_sound() ? std::optional(std::move(image)) : std::nullopt;
}
