#include "bench/big_photos.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <jpeglib.h>
#include <thread>

namespace {

constexpr int long_side = 4000, short_side = 3000;
constexpr int quality = 90;
constexpr int octaves = 7;
constexpr int channels = 3;
constexpr float grain = 20;

std::uint32_t mixed(std::uint32_t value)
{
    value ^= value >> 16;
    value *= 0x7FEB352DU;
    value ^= value >> 15;
    value *= 0x846CA68BU;
    return value ^ value >> 16;
}

float chance(int x, int y, std::uint32_t seed)
{
    const std::uint32_t at =
        static_cast<std::uint32_t>(x) * 0x9E3779B9U ^ static_cast<std::uint32_t>(y) * 0x85EBCA6BU;
    return static_cast<float>(mixed(at ^ mixed(seed)) >> 8) / 16777216.0F - 0.5F;
}

float eased(float part)
{
    return part * part * (3 - 2 * part);
}

/// One layer of hills as wide as `cell` along a row, added to it.
void add_hills(std::vector<float> & row, int y, int cell, std::uint32_t seed)
{
    const int width = static_cast<int>(row.size()), top = y / cell;
    const float down = eased(static_cast<float>(y % cell) / static_cast<float>(cell));
    const auto edge = [&](int column) {
        const float above = chance(column, top, seed), below = chance(column, top + 1, seed);
        return above + (below - above) * down;
    };
    const float height = static_cast<float>(cell) / 4;
    for (int column = 0; column * cell < width; ++column) {
        const float left = edge(column), right = edge(column + 1);
        for (int x = column * cell; x < std::min((column + 1) * cell, width); ++x) {
            const float across = eased(static_cast<float>(x % cell) / static_cast<float>(cell));
            row[static_cast<std::size_t>(x)] += (left + (right - left) * across) * height;
        }
    }
}

void fill_row(std::vector<JSAMPLE> & bytes, int y, int width, std::uint32_t seed)
{
    std::array<std::vector<float>, channels> light;
    for (std::uint32_t channel = 0; channel < channels; ++channel) {
        light[channel].assign(static_cast<std::size_t>(width), 128);
        for (int octave = 0; octave < octaves; ++octave)
            add_hills(light[channel], y, 1024 >> octave,
                      seed * 64 + static_cast<std::uint32_t>(octave) * 4 + channel % 2);
    }
    for (int x = 0; x < width; ++x) {
        const std::size_t at = static_cast<std::size_t>(x);
        const float speck = (chance(x, y, seed) + chance(x / 2, y / 2, seed + 1)) * grain;
        for (std::size_t channel = 0; channel < channels; ++channel)
            bytes[at * channels + channel] =
                static_cast<JSAMPLE>(std::clamp(light[channel][at] + speck, 0.0F, 255.0F));
    }
}

void begin(jpeg_compress_struct & made, int width, int height)
{
    made.image_width = static_cast<JDIMENSION>(width);
    made.image_height = static_cast<JDIMENSION>(height);
    made.in_color_space = JCS_RGB;
    made.input_components = channels;
    jpeg_set_defaults(&made);
    jpeg_set_quality(&made, quality, TRUE);
    jpeg_start_compress(&made, TRUE);
}

void make(const std::string & path, int index)
{
    const bool upright = index % 3 == 2;
    const int width = upright ? short_side : long_side, height = upright ? long_side : short_side;
    jpeg_compress_struct made{};
    jpeg_error_mgr errors{};
    made.err = jpeg_std_error(&errors);
    jpeg_create_compress(&made);
    unsigned char * bytes = nullptr;
    unsigned long count = 0;
    jpeg_mem_dest(&made, &bytes, &count);
    begin(made, width, height);
    std::vector<JSAMPLE> row(static_cast<std::size_t>(width) * channels);
    for (int y = 0; y < height; ++y) {
        fill_row(row, y, width, static_cast<std::uint32_t>(index) + 1);
        JSAMPROW start = row.data();
        jpeg_write_scanlines(&made, &start, 1);
    }
    jpeg_finish_compress(&made);
    jpeg_destroy_compress(&made);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char *>(bytes), static_cast<std::streamsize>(count));
    std::free(bytes);
}

}  // namespace

std::vector<std::string> big_photos(const std::string & folder, int count)
{
    std::filesystem::create_directories(folder);
    std::vector<std::string> paths;
    for (int i = 0; i < count; ++i) {
        std::string name = std::to_string(i);
        name.insert(0, 4 - std::min<std::size_t>(name.size(), 4), '0');
        paths.push_back(folder + "/photo_" + name + ".jpg");
    }
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> workers;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
        workers.emplace_back([&] {
            for (std::size_t at = next++; at < paths.size(); at = next++)
                if (!std::filesystem::exists(paths[at]))
                    make(paths[at], static_cast<int>(at));
        });
    workers.clear();
    return paths;
}
