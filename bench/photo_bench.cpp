// Times how a photo of 12 megapixels comes to the size of its place: what the image library takes for it, and
// what it takes by rows.

#include "bench/big_photos.h"
#include "engine/pixels/resize_image.h"
#include "photos/scaled_jpeg.h"
#include "tests/pictures.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

constexpr picture_size photo_size{.width = 4000, .height = 3000};
constexpr picture_size places[] = {{450, 338}, {200, 150}, {1200, 900}, {4400, 3300}};

const bitmap & photo()
{
    static const bitmap image = noise(photo_size.width, photo_size.height);
    return image;
}

const std::string & file()
{
    static const std::string path =
        big_photos((std::filesystem::temp_directory_path() / "tessaloom_big_photos").string(), 1).front();
    return path;
}

picture_size place_of(const benchmark::State & state)
{
    return places[state.range(0)];
}

void scaled_by_the_library(benchmark::State & state)
{
    const picture_size place = place_of(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(rescaled(photo(), place.width, place.height));
}
BENCHMARK(scaled_by_the_library)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void scaled_by_rows(benchmark::State & state, arithmetic way)
{
    scaling_memory memory;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            scaled_by_rows(photo(), all_scaled(photo_size, place_of(state)), memory, way));
}
BENCHMARK_CAPTURE(scaled_by_rows, one_by_one, arithmetic::one_by_one)
    ->DenseRange(0, 3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scaled_by_rows, best, best_arithmetic())->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void loaded_by_the_library(benchmark::State & state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(load_picture(picture_format::jpeg, file()));
}
BENCHMARK(loaded_by_the_library)->Unit(benchmark::kMillisecond);

void loaded_by_rows(benchmark::State & state)
{
    jpeg_memory memory;
    for (auto _ : state)
        benchmark::DoNotOptimize(read_jpeg(file(), memory));
}
BENCHMARK(loaded_by_rows)->Unit(benchmark::kMillisecond);

void only_decoded(benchmark::State & state)
{
    jpeg_memory memory;
    for (auto _ : state) {
        jpeg_rows photo(file(), memory);
        while (!photo.next().empty())
            continue;
        benchmark::DoNotOptimize(photo.is_sound());
    }
}
BENCHMARK(only_decoded)->Unit(benchmark::kMillisecond);

void fitted_by_the_library(benchmark::State & state)
{
    const picture_size place = place_of(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            resize_image(load_picture(picture_format::jpeg, file()), place.width, place.height));
}
BENCHMARK(fitted_by_the_library)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void fitted_by_rows(benchmark::State & state)
{
    photo_memory memory;
    for (auto _ : state)
        benchmark::DoNotOptimize(read_fitted_jpeg(file(), place_of(state), memory));
}
BENCHMARK(fitted_by_rows)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

}  // namespace
