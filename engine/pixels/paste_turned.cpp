#include "engine/pixels/paste_turned.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace {

// Places in the picture as whole numbers: a row of the longest canvas doesn't gather an error that shows.
using fine_place = std::int64_t;
constexpr int place_bits = 32, weight_bits = 8;
constexpr int whole_weight = 1 << weight_bits;
constexpr int wholly_covered = 255;

fine_place fine(double place)
{
    return std::llround(std::ldexp(place, place_bits));
}

int weight_of(fine_place place)
{
    return static_cast<int>(place >> (place_bits - weight_bits)) & (whole_weight - 1);
}

/// The rows of a bitmap from the top.
std::vector<const pixel *> rows_from_top(const bitmap & image)
{
    std::vector<const pixel *> rows;
    for (int y = image.height() - 1; y >= 0; --y)
        rows.push_back(image.row(y).data());
    return rows;
}

/// Where a pixel of the canvas lies between four of the picture: the upper left one's column and row, and how
/// far on it lies.
struct spot_between {
    int column = 0, row = 0, right = 0, down = 0;
};

/// Four neighbours, and what each of them weighs, of 65,536 in all.
class neighbours {
public:
    neighbours(const std::vector<const pixel *> & rows, const spot_between & between)
        : upper(rows[static_cast<std::size_t>(between.row)] + between.column),
          lower(rows[static_cast<std::size_t>(between.row) + 1] + between.column)
    {
        const int left = whole_weight - between.right, up = whole_weight - between.down;
        weights = {left * up, between.right * up, left * between.down, between.right * between.down};
    }

    std::uint8_t mixed(std::uint8_t pixel::*channel) const
    {
        constexpr int half = 1 << (2 * weight_bits - 1);
        return static_cast<std::uint8_t>((upper[0].*channel * weights[0] + upper[1].*channel * weights[1] +
                                          lower[0].*channel * weights[2] + lower[1].*channel * weights[3] +
                                          half) >>
                                         (2 * weight_bits));
    }

    rgb_triple mixed() const
    {
        return {.red = mixed(&pixel::red), .green = mixed(&pixel::green), .blue = mixed(&pixel::blue)};
    }

private:
    const pixel *upper, *lower;
    std::array<int, 4> weights{};
};

/// What two neighbours of which the covered ones lie from `first` on, before `last`, weigh together.
int covered_weight(int at, int on, int first, int last)
{
    const auto is_covered = [&](int place) { return place >= first && place < last; };
    return (is_covered(at) ? whole_weight - on : 0) + (is_covered(at + 1) ? on : 0);
}

int cover_of_filled(const rectangle & filled, const spot_between & between)
{
    const int across = covered_weight(between.column, between.right, filled.left, filled.right());
    const int along = covered_weight(between.row, between.down, filled.top, filled.bottom());
    return (across * along * 255 + (1 << (2 * weight_bits - 1))) >> (2 * weight_bits);
}

std::uint8_t laid(std::uint8_t below, std::uint8_t above, int cover)
{
    return static_cast<std::uint8_t>(std::min(above + (below * (255 - cover) + 127) / 255, 255));
}

pixel laid(pixel below, rgb_triple above, int cover)
{
    return rgb_triple{.red = laid(below.red, above.red, cover),
                      .green = laid(below.green, above.green, cover),
                      .blue = laid(below.blue, above.blue, cover)};
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

/// A place in the picture, and what each pixel of a row adds to it.
struct fine_spot {
    fine_place column = 0, line = 0;
};

fine_spot further(const fine_spot & from, const fine_spot & step, int pixels)
{
    return {.column = from.column + pixels * step.column, .line = from.line + pixels * step.line};
}

spot_between between_of(const fine_spot & spot)
{
    return {.column = static_cast<int>(spot.column >> place_bits),
            .row = static_cast<int>(spot.line >> place_bits),
            .right = weight_of(spot.column),
            .down = weight_of(spot.line)};
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
        : filled(pasted.filled),
          at(spot),
          size{.width = pasted.colors.width(), .height = pasted.colors.height()},
          colors(rows_from_top(pasted.colors)),
          covers(rows_from_top(pasted.cover)),
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
        if (covers.empty())
            put(part, on, [this](const spot_between & between) { return cover_of_filled(filled, between); });
        else
            put(part, on, [this](const spot_between & between) {
                return int{neighbours(covers, between).mixed(&pixel::red)};
            });
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
        const spot_between between = between_of(spot);
        return between.column >= 0 && between.row >= 0 && between.column + 1 < size.width &&
               between.row + 1 < size.height;
    }

    template <typename Cover>
    void put(std::span<pixel> row, const row_on_picture & on, const Cover & cover_at) const
    {
        fine_spot spot = on.start;
        for (pixel & into : row) {
            const spot_between between = between_of(spot);
            const int cover = cover_at(between);
            if (cover == wholly_covered)
                into = neighbours(colors, between).mixed();
            else if (cover > 0)
                into = laid(into, neighbours(colors, between).mixed(), cover);
            spot = further(spot, on.step, 1);
        }
    }

    rectangle filled;
    turned_spot at;
    picture_size size;
    std::vector<const pixel *> colors, covers;
    double sine, cosine;
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
