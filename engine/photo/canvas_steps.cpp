#include "engine/photo/canvas_steps.h"

#include "support/files/beside.h"

#include <cstdint>

namespace {

constexpr int small_part = 200'000;  // pixels: drawn within milliseconds, tilts as well

}  // namespace

void draw_on_canvas(frmMain & main, picture_size size, const std::function<void(bitmap & canvas)> & step)
{
    if (std::int64_t{size.width} * size.height < small_part)
        step(main.run.canvas);
    else
        beside(main.desk, main.workers, [&] { step(main.run.canvas); });
}

void work_on_canvas(frmMain & main, const std::function<void(bitmap & canvas)> & step)
{
    const bitmap & canvas = main.run.canvas;
    draw_on_canvas(main, {.width = canvas.width(), .height = canvas.height()}, step);
}
