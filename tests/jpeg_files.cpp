#include "tests/jpeg_files.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>

namespace {

struct colors_of_libjpeg {
    J_COLOR_SPACE given, kept;
    int components;
};

colors_of_libjpeg in_libjpeg(jpeg_colors colors)
{
    switch (colors) {
        case jpeg_colors::grey:
            return {JCS_GRAYSCALE, JCS_GRAYSCALE, 1};
        case jpeg_colors::rgb:
            return {JCS_RGB, JCS_RGB, 3};
        case jpeg_colors::ycc:
            return {JCS_RGB, JCS_YCbCr, 3};
        case jpeg_colors::cmyk:
            return {JCS_CMYK, JCS_CMYK, 4};
        case jpeg_colors::ycck:
            break;
    }
    return {JCS_CMYK, JCS_YCCK, 4};
}

void set_coding(jpeg_compress_struct & made, jpeg_coding coding)
{
    // The library reads the script until the file is written.
    static const jpeg_scan_info scans[] = {
        {1, {0}, 0, 63, 0, 0}, {1, {1}, 0, 63, 0, 0}, {1, {2}, 0, 63, 0, 0}, {1, {3}, 0, 63, 0, 0}};
    if (coding == jpeg_coding::progressive)
        jpeg_simple_progression(&made);
    made.optimize_coding = coding == jpeg_coding::best_tables ? TRUE : FALSE;
    made.arith_code = coding == jpeg_coding::arithmetic ? TRUE : FALSE;
    if (coding == jpeg_coding::a_scan_each) {
        made.scan_info = scans;
        made.num_scans = made.num_components;
    }
}

void set_kind(jpeg_compress_struct & made, const jpeg_kind & kind)
{
    const colors_of_libjpeg colors = in_libjpeg(kind.colors);
    made.in_color_space = colors.given;
    made.input_components = colors.components;
    jpeg_set_defaults(&made);
    jpeg_set_colorspace(&made, colors.kept);
    jpeg_set_quality(&made, kind.quality, TRUE);
    for (std::size_t i = 0; i < kind.sampling.size(); ++i) {
        made.comp_info[i].h_samp_factor = kind.sampling[i].first;
        made.comp_info[i].v_samp_factor = kind.sampling[i].second;
    }
    made.restart_interval = static_cast<unsigned>(kind.restart);
    set_coding(made, kind.coding);
}

/// Waves with noise, row by row from the top; the waves across are the same in each row.
class waves {
public:
    waves(int width, int components) : components(components)
    {
        for (int x = 0; x < width; ++x)
            for (int channel = 0; channel < components; ++channel)
                across.push_back(127 * std::sin(x * 0.13 + channel));
    }

    std::vector<JSAMPLE> row(int y)
    {
        std::array<double, 4> down{};
        for (int channel = 0; channel < components; ++channel)
            down[static_cast<std::size_t>(channel)] = std::cos(y * 0.07 + 2 * channel);
        std::vector<JSAMPLE> samples(across.size());
        for (std::size_t i = 0; i < samples.size(); ++i) {
            state = state * 1664525 + 1013904223;
            const double wave = across[i] * down[i % static_cast<std::size_t>(components)];
            samples[i] = static_cast<JSAMPLE>(128 + 0.8 * wave + (state >> 24) * 0.09 - 11);
        }
        return samples;
    }

private:
    int components;
    std::vector<double> across;
    std::uint32_t state = 1;
};

}  // namespace

std::string jpeg_of(const jpeg_kind & kind, int width, int height)
{
    jpeg_compress_struct made{};
    jpeg_error_mgr errors{};
    made.err = jpeg_std_error(&errors);
    jpeg_create_compress(&made);
    unsigned char * bytes = nullptr;
    unsigned long count = 0;
    jpeg_mem_dest(&made, &bytes, &count);
    made.image_width = static_cast<JDIMENSION>(width);
    made.image_height = static_cast<JDIMENSION>(height);
    set_kind(made, kind);
    jpeg_start_compress(&made, TRUE);
    for (const jpeg_marker & marker : kind.markers)
        jpeg_write_marker(&made, marker.code, reinterpret_cast<const JOCTET *>(marker.bytes.data()),
                          static_cast<unsigned>(marker.bytes.size()));
    waves picture(width, made.input_components);
    for (int y = 0; y < height; ++y) {
        std::vector<JSAMPLE> row = picture.row(y);
        JSAMPROW start = row.data();
        jpeg_write_scanlines(&made, &start, 1);
    }
    jpeg_finish_compress(&made);
    jpeg_destroy_compress(&made);
    const std::string file(reinterpret_cast<const char *>(bytes), count);
    std::free(bytes);
    return file;
}
