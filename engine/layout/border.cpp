#include "engine/layout/border.h"

#include <array>
#include <cstddef>

namespace {

struct border_row {
    double height, scattered_width, width, left, left_offset, scattered_top, top, top_offset;
};

// From none to huge.
constexpr std::array<border_row, 6> oblong_borders{{{0.95, 0.95, 0.95, 0.95, 40, 0.95, 0.95, 36},
                                                    {0.93, 0.93, 0.9, 0.9, 60, 0.93, 0.93, 55},
                                                    {0.9, 0.9, 0.85, 0.85, 150, 0.9, 0.9, 145},
                                                    {0.87, 0.87, 0.8, 0.8, 200, 0.87, 0.87, 195},
                                                    {0.835, 0.835, 0.75, 0.75, 250, 0.835, 0.835, 247},
                                                    {0.8, 0.8, 0.7, 0.7, 300, 0.8, 0.8, 300}}};
constexpr std::array<border_row, 6> square_borders{{{0.95, 0.95, 0.95, 0.95, 40, 0.95, 0.95, 36},
                                                    {0.9, 0.9, 0.9, 0.9, 100, 0.9, 0.9, 95},
                                                    {0.85, 0.85, 0.85, 0.85, 150, 0.85, 0.85, 145},
                                                    {0.8, 0.8, 0.8, 0.8, 200, 0.8, 0.8, 195},
                                                    {0.75, 0.75, 0.75, 0.75, 250, 0.65, 0.75, 247},
                                                    {0.7, 0.7, 0.7, 0.7, 300, 0.6, 0.7, 300}}};

}  // namespace

location_bend border_bend(const border_setting & setting, run_size size)
{
    const double k = size == run_size::preview ? 0.15 : 1;
    const border_row & row =
        (setting.square ? square_borders : oblong_borders)[static_cast<std::size_t>(setting.size)];
    return {.top{.factor = setting.scattered ? row.scattered_top : row.top, .offset = row.top_offset * k},
            .left{.factor = row.left, .offset = row.left_offset * k},
            .height{.factor = row.height},
            .width{.factor = setting.scattered ? row.scattered_width : row.width}};
}
