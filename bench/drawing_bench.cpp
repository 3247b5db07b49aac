// Times what is done to a single photo, in the sizes of a poster of 40. Loading and scaling a photo is the
// measure: all the rest together has to stay small beside it.

#include "engine/pixels/corners.h"
#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/mask.h"
#include "engine/pixels/resize_image.h"
#include "engine/pixels/soft_edge_paste.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int canvas_width = 2860, canvas_height = 3860;
constexpr int photo_width = 450, photo_height = 320, photo_top = 900, photo_left = 700;
constexpr int shape_size = 320;

bitmap colored(int width, int height)
{
    bitmap image(width, height);
    fill(image, {90, 140, 60});
    return image;
}

/// A white ground with a black square in its middle.
bitmap square_mask()
{
    bitmap mask(shape_size, shape_size);
    fill(mask, {255, 255, 255});
    for (int y = shape_size / 8; y < shape_size * 7 / 8; ++y)
        for (int x = shape_size / 8; x < shape_size * 7 / 8; ++x)
            set_pixel(mask, x, y, {});
    return mask;
}

constexpr rectangle photo_place{
    .left = photo_left, .top = photo_top, .width = photo_width, .height = photo_height};

bitmap full_canvas()
{
    return colored(canvas_width, canvas_height);
}

void fill_canvas(benchmark::State & state)
{
    bitmap canvas = full_canvas();
    for (auto _ : state)
        fill(canvas, {7, 8, 9});
}
BENCHMARK(fill_canvas)->Unit(benchmark::kMicrosecond);

void resize_photo(benchmark::State & state)
{
    const bitmap photo = colored(4000, 3000);
    for (auto _ : state)
        benchmark::DoNotOptimize(resize_image(photo, photo_width, photo_height));
}
BENCHMARK(resize_photo)->Unit(benchmark::kMicrosecond);

void paste_photo(benchmark::State & state)
{
    bitmap canvas = full_canvas();
    const bitmap photo = colored(photo_width, photo_height);
    for (auto _ : state)
        paste(canvas, photo, photo_left, photo_top, plain_copy);
}
BENCHMARK(paste_photo)->Unit(benchmark::kMicrosecond);

void frame(benchmark::State & state)
{
    bitmap canvas = full_canvas();
    const ornaments worn{.frame = static_cast<int>(state.range(0))};
    for (auto _ : state)
        draw_frame(canvas, photo_place, worn, 0);
}
BENCHMARK(frame)->Arg(1)->Arg(10)->Arg(60)->Unit(benchmark::kMicrosecond);

void shadow(benchmark::State & state)
{
    bitmap canvas = full_canvas();
    const ornaments worn{.shadow = static_cast<int>(state.range(0))};
    for (auto _ : state)
        draw_shadow(canvas, photo_place, worn);
}
BENCHMARK(shadow)->Arg(5)->Arg(10)->Arg(50)->Unit(benchmark::kMicrosecond);

void corners(benchmark::State & state)
{
    const int side = static_cast<int>(state.range(0));
    bitmap canvas = full_canvas();
    bitmap photo = colored(side, side);
    for (auto _ : state)
        cut_corners(photo, canvas, {.left = photo_left, .top = photo_top, .width = side, .height = side});
}
BENCHMARK(corners)->Arg(100)->Arg(320)->Arg(700)->Unit(benchmark::kMicrosecond);

void soft_edges(benchmark::State & state)
{
    const int side = static_cast<int>(state.range(0));
    bitmap canvas = full_canvas();
    const bitmap photo = colored(side, side);
    for (auto _ : state)
        soft_edge_paste(canvas, photo, {.left = photo_left, .top = photo_top, .width = side, .height = side});
}
BENCHMARK(soft_edges)->Arg(100)->Arg(320)->Arg(700)->Unit(benchmark::kMicrosecond);

void shape_of_a_photo(benchmark::State & state)
{
    bitmap canvas = full_canvas();
    const bitmap mask = square_mask(), photo = colored(shape_size, shape_size);
    for (auto _ : state)
        paint_mask(canvas, mask, photo, shape_border::lightened, {photo_left, photo_top});
}
BENCHMARK(shape_of_a_photo)->Unit(benchmark::kMicrosecond);

void scaling_of_a_mask(benchmark::State & state)
{
    const bitmap mask = resize_image(square_mask(), 600, 600);
    for (auto _ : state)
        benchmark::DoNotOptimize(resize_image(mask, shape_size, shape_size));
}
BENCHMARK(scaling_of_a_mask)->Unit(benchmark::kMicrosecond);

}  // namespace
