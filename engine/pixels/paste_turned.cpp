#include "engine/pixels/paste_turned.h"

#include "engine/pixels/turned_pixels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

fine_place fine(double place)
{
    return std::llround(std::ldexp(place, place_bits));
}

/// A coordinate of the picture along a row of the canvas: where it begins, and what each pixel adds.
struct coordinate {
    double start = 0, step = 0;
};

/// The columns for which the coordinate stays from 0 to `end`, the latter exclusive.
column_span columns_inside(const coordinate & along, double end, int width)
{
    if (along.step == 0)
        return {.first = 0, .last = along.start >= 0 && along.start < end ? width : 0};
    const double first = -along.start / along.step, last = (end - along.start) / along.step;
    const auto bounded = [width](double column) {
        return static_cast<int>(std::clamp(std::ceil(column), 0.0, static_cast<double>(width)));
    };
    return {.first = bounded(std::min(first, last)), .last = bounded(std::max(first, last))};
}

/// The pixels of a row of the canvas that lie on the picture, and where the first of them does.
struct row_on_picture {
    column_span pixels;
    fine_spot start, step;
};

/// Rows of the canvas from its top, `last` exclusive.
struct rows_from_to {
    int first = 0, last = 0;
};

class turned_paste {
public:
    turned_paste(const covered_picture & pasted, const turned_spot & spot)
        : source{.colors = rows_from_top(pasted.colors),
                 .covers = rows_from_top(pasted.cover),
                 .filled = pasted.filled},
          at(spot),
          size{.width = pasted.colors.width(), .height = pasted.colors.height()},
          sine(std::sin(spot.degrees * std::numbers::pi / 180)),
          cosine(std::cos(spot.degrees * std::numbers::pi / 180))
    {}

    /// Those rows of a canvas of that height on which something of the picture can lie.
    rows_from_to rows_on(int height) const
    {
        double first = height, last = 0;
        for (const double x : {0, size.width})
            for (const double y : {0, size.height}) {
                const double row = at.to.y + (x - at.from.x) * sine + (y - at.from.y) * cosine;
                first = std::min(first, row);
                last = std::max(last, row);
            }
        const auto bounded = [height](double row) {
            return static_cast<int>(std::clamp(row, 0.0, static_cast<double>(height)));
        };
        return {.first = bounded(std::floor(first) - 1), .last = bounded(std::ceil(last) + 1)};
    }

    /// A row of the canvas, `y` rows from its top.
    void put_row(std::span<pixel> row, int y) const
    {
        const row_on_picture on = row_at(y, static_cast<int>(row.size()));
        if (on.pixels.first >= on.pixels.last)
            return;
        const auto part = row.subspan(static_cast<std::size_t>(on.pixels.first),
                                      static_cast<std::size_t>(on.pixels.last - on.pixels.first));
        put_turned(source, {.into = part, .start = on.start, .step = on.step}, way);
    }

private:
    row_on_picture row_at(int y, int width) const
    {
        // Counted from the middle of the picture's first pixel.
        const double right = 0.5 - at.to.x, down = y + 0.5 - at.to.y;
        const coordinate x{.start = at.from.x - 0.5 + right * cosine + down * sine, .step = cosine};
        const coordinate y_of{.start = at.from.y - 0.5 - right * sine + down * cosine, .step = -sine};
        const column_span across = columns_inside(x, size.width - 1.0, width);
        const column_span along = columns_inside(y_of, size.height - 1.0, width);
        const int first = std::max(across.first, along.first), last = std::min(across.last, along.last);
        return without_outer_ends({.pixels = {.first = first, .last = last},
                                   .start = {.column = fine(x.start + first * x.step),
                                             .line = fine(y_of.start + first * y_of.step)},
                                   .step = {.column = fine(x.step), .line = fine(y_of.step)}});
    }

    // The ends of a row are reckoned in other roundings than its pixels.
    row_on_picture without_outer_ends(row_on_picture row) const
    {
        while (row.pixels.first < row.pixels.last && !is_inside(row.start)) {
            row.start = further(row.start, row.step, 1);
            ++row.pixels.first;
        }
        while (row.pixels.first < row.pixels.last &&
               !is_inside(further(row.start, row.step, row.pixels.last - 1 - row.pixels.first)))
            --row.pixels.last;
        return row;
    }

    bool is_inside(const fine_spot & spot) const
    {
        const fine_place column = spot.column >> place_bits, line = spot.line >> place_bits;
        return column >= 0 && line >= 0 && column + 1 < size.width && line + 1 < size.height;
    }

    turned_source source;
    turned_spot at;
    picture_size size;
    double sine, cosine;
    arithmetic way = best_arithmetic();
};

}  // namespace

void paste_turned(bitmap & canvas, const covered_picture & picture, const turned_spot & at,
                  const idle_workers & others)
{
    constexpr int rows_a_part = 64;
    const turned_paste paste(picture, at);
    const int height = canvas.height();
    const rows_from_to rows = paste.rows_on(height);
    others.share((rows.last - rows.first + rows_a_part - 1) / rows_a_part, [&](int part) {
        const int first = rows.first + part * rows_a_part;
        for (int y = first; y < std::min(first + rows_a_part, rows.last); ++y)
            paste.put_row(canvas.row(height - 1 - y), y);
    });
}
