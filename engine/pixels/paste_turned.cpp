#include "engine/pixels/paste_turned.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace {

// Places in the picture as whole numbers: a row of the longest canvas doesn't gather an error that shows.
using fine_place = std::int64_t;
constexpr int place_bits = 32, weight_bits = 8;
constexpr int whole_weight = 1 << weight_bits;

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

std::uint8_t mixed(int upper_left, int upper_right, int lower_left, int lower_right,
                   const spot_between & between)
{
    const int upper = upper_left * (whole_weight - between.right) + upper_right * between.right;
    const int lower = lower_left * (whole_weight - between.right) + lower_right * between.right;
    constexpr int half = 1 << (2 * weight_bits - 1);
    return static_cast<std::uint8_t>((upper * (whole_weight - between.down) + lower * between.down + half) >>
                                     (2 * weight_bits));
}

rgb_triple mixed(const std::vector<const pixel *> & rows, const spot_between & between)
{
    const pixel * upper = rows[static_cast<std::size_t>(between.row)] + between.column;
    const pixel * lower = rows[static_cast<std::size_t>(between.row) + 1] + between.column;
    return {.red = mixed(upper[0].red, upper[1].red, lower[0].red, lower[1].red, between),
            .green = mixed(upper[0].green, upper[1].green, lower[0].green, lower[1].green, between),
            .blue = mixed(upper[0].blue, upper[1].blue, lower[0].blue, lower[1].blue, between)};
}

int mixed_cover(const std::vector<const pixel *> & rows, const spot_between & between)
{
    const pixel * upper = rows[static_cast<std::size_t>(between.row)] + between.column;
    const pixel * lower = rows[static_cast<std::size_t>(between.row) + 1] + between.column;
    return mixed(upper[0].red, upper[1].red, lower[0].red, lower[1].red, between);
}

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

class turned_paste {
public:
    turned_paste(const covered_picture & pasted, const turned_spot & spot)
        : picture(pasted),
          at(spot),
          colors(rows_from_top(pasted.colors)),
          covers(rows_from_top(pasted.cover)),
          sine(std::sin(spot.degrees * std::numbers::pi / 180)),
          cosine(std::cos(spot.degrees * std::numbers::pi / 180))
    {}

    /// A row of the canvas, `y` rows from its top.
    void put_row(std::span<pixel> row, int y) const
    {
        // Counted from the middle of the picture's first pixel.
        const double right = 0.5 - at.to.x, down = y + 0.5 - at.to.y;
        const coordinate x{.start = at.from.x - 0.5 + right * cosine + down * sine, .step = cosine};
        const coordinate y_of{.start = at.from.y - 0.5 - right * sine + down * cosine, .step = -sine};
        const int width = static_cast<int>(row.size());
        const column_span across = columns_inside(x, picture.colors.width() - 1.0, width);
        const column_span along = columns_inside(y_of, picture.colors.height() - 1.0, width);
        const int first = std::max(across.first, along.first), last = std::min(across.last, along.last);
        fine_place column = fine(x.start + first * x.step), line = fine(y_of.start + first * y_of.step);
        const fine_place column_step = fine(x.step), line_step = fine(y_of.step);
        for (int i = first; i < last; ++i, column += column_step, line += line_step)
            put(row[static_cast<std::size_t>(i)], column, line);
    }

private:
    void put(pixel & into, fine_place column, fine_place line) const
    {
        const spot_between between{.column = static_cast<int>(column >> place_bits),
                                   .row = static_cast<int>(line >> place_bits),
                                   .right = weight_of(column),
                                   .down = weight_of(line)};
        // The ends of a row are reckoned in other roundings than its pixels.
        if (between.column < 0 || between.row < 0 || between.column + 1 >= picture.colors.width() ||
            between.row + 1 >= picture.colors.height())
            return;
        const int cover =
            covers.empty() ? cover_of_filled(picture.filled, between) : mixed_cover(covers, between);
        if (cover > 0)
            into = laid(into, mixed(colors, between), cover);
    }

    const covered_picture & picture;
    turned_spot at;
    std::vector<const pixel *> colors, covers;
    double sine, cosine;
};

}  // namespace

void paste_turned(bitmap & canvas, const covered_picture & picture, const turned_spot & at)
{
    const turned_paste paste(picture, at);
    for (int y = 0; y < canvas.height(); ++y)
        paste.put_row(canvas.row(canvas.height() - 1 - y), y);
}
