// Times tilted photos: at full size one of 700 by 700, which may cost 110 ms, in a preview a thumbnail, 3 ms.

#include "tests/engine/tilt_stage.h"
#include "tests/pictures.h"

#include <benchmark/benchmark.h>

namespace {

void draw_tilted(benchmark::State & state, int side, picture_size canvas)
{
    tilt_stage stage;
    stage.main.in_preview = side < 150;
    stage.main.run.canvas = graded(canvas.width, canvas.height);
    const bitmap photo = graded(side, side);
    for (auto _ : state) {
        stage.wear(10, 20);
        stage.draw(photo, {.left = canvas.width / 3, .top = canvas.height / 3, .width = side, .height = side},
                   static_cast<int>(state.range(0)));
    }
}

void draw_tilted_photo(benchmark::State & state)
{
    draw_tilted(state, 700, {.width = 2860, .height = 3860});
}
BENCHMARK(draw_tilted_photo)
    ->Arg(5)
    ->Arg(-15)
    ->Arg(30)
    ->Arg(45)
    ->Arg(60)
    ->Arg(90)
    ->Unit(benchmark::kMillisecond);

void draw_tilted_thumbnail(benchmark::State & state)
{
    draw_tilted(state, 100, {.width = 477, .height = 643});
}
BENCHMARK(draw_tilted_thumbnail)->Arg(5)->Arg(-15)->Arg(45)->Unit(benchmark::kMillisecond);

}  // namespace
