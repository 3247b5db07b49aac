#include "designers/matrix/matrix_sample.h"

#include "designers/matrix/matrix_layout.h"
#include "designers/poster_area.h"
#include "engine/layout/cell_geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace {

constexpr int photos_to_a_double = 3;

constexpr rgb_triple paper{.red = 255, .green = 255, .blue = 255},
    outline{.red = 74, .green = 84, .blue = 98}, sky{.red = 176, .green = 204, .blue = 228},
    sun{.red = 250, .green = 226, .blue = 160}, far_hill{.red = 132, .green = 164, .blue = 136},
    near_hill{.red = 98, .green = 134, .blue = 108}, wood{.red = 176, .green = 138, .blue = 100};

// ---- what lies where

grid grid_of(const matrix_layout & layout)
{
    return {.top = layout.top,
            .left = layout.left,
            .rows = layout.rows,
            .columns = layout.columns,
            .row_gap = layout.gap_v,
            .column_gap = layout.gap_h,
            .cell_height = layout.cell_height,
            .cell_width = layout.cell_width};
}

std::vector<sample_piece> grid_pieces(const matrix_choices & choices, const grid & layer)
{
    std::vector<sample_piece> pieces;
    const bool both = choices.photos == matrix_photos::both;
    for (int row = 0; row < layer.rows; ++row) {
        row_lean lean = row_lean::none;
        int photo = row;  // so that the double cells don't stand in columns
        for (int column = 0; column < layer.columns; ++column, ++photo) {
            const bool lies = both && photo % photos_to_a_double == 1 && has_right_neighbour(layer, column);
            const grid_position at{
                .row = row, .column = column, .span = lies ? cell_span::twice : cell_span::single};
            const shake & by = shake_table.at(pieces.size() % shake_table.size());
            const shaken cell =
                shaken_cell(layer, at, by, {.resize = choices.resize, .rotate = choices.rotate}, lean);
            pieces.push_back({.area = photo_area(layer, at, cell), .rotation = cell.rotation});
            column += lies ? 1 : 0;
        }
    }
    return pieces;
}

std::vector<sample_piece> framed_pieces(const std::vector<framed_cell> & cells)
{
    std::vector<sample_piece> pieces;
    for (const framed_cell & cell : cells) {
        pieces.push_back({.kind = sample_kind::frame, .area = cell.area});
        pieces.push_back({.kind = sample_kind::photo, .area = cell.photo});
    }
    return pieces;
}

// ---- how it looks

struct point {
    double x = 0, y = 0;
};

// A little landscape, whatever the shape of the photo.
rgb_triple photo_color(const sample_piece & piece, point at)
{
    const double u = at.x / piece.area.width, v = at.y / piece.area.height;
    if (v > 0.70 + 0.35 * (u - 0.9) * (u - 0.9))
        return near_hill;
    if (v > 0.56 + 0.8 * (u - 0.3) * (u - 0.3))
        return far_hill;
    const double right = at.x - 0.74 * piece.area.width, down = at.y - 0.27 * piece.area.height;
    const double radius = 0.12 * std::min(piece.area.width, piece.area.height);
    return right * right + down * down < radius * radius ? sun : sky;
}

// Nothing outside the piece.
std::optional<rgb_triple> piece_color(const sample_piece & piece, point at, int line)
{
    const double to_edge = std::min({at.x, at.y, piece.area.width - at.x, piece.area.height - at.y});
    if (to_edge < 0)
        return std::nullopt;
    if (to_edge < line)
        return outline;
    return piece.kind == sample_kind::frame ? wood : photo_color(piece, at);
}

// From the poster to the piece as it stood before it was turned.
class turn_back {
public:
    explicit turn_back(const sample_piece & turned)
        : piece(turned),
          cosine(std::cos(turned.rotation * std::numbers::pi / 180)),
          sine(std::sin(turned.rotation * std::numbers::pi / 180))
    {}
    point operator()(point at) const
    {
        const double x = at.x - piece.area.left, y = at.y - piece.area.top;
        return {.x = x * cosine + y * sine, .y = y * cosine - x * sine};
    }
    /// Rows and columns of the poster that the piece reaches.
    struct bounds {
        double left, top, right, bottom;
    };
    bounds reach() const
    {
        const double swing = piece.area.height * -sine, sink = piece.area.width * sine;
        return {.left = piece.area.left + std::min(0.0, swing),
                .top = piece.area.top + std::min(0.0, sink),
                .right = piece.area.left + piece.area.width * cosine + std::max(0.0, swing),
                .bottom = piece.area.top + piece.area.height * cosine + std::max(0.0, sink)};
    }

private:
    const sample_piece & piece;
    double cosine, sine;
};

void paint_piece(bitmap & sample, const sample_piece & piece, int divisor)
{
    const turn_back back(piece);
    const turn_back::bounds reach = back.reach();
    const auto pixel_of = [divisor](double at, int limit) {
        return std::clamp(static_cast<int>(std::floor(at / divisor)), 0, limit);
    };
    const int left = pixel_of(reach.left, sample.width());
    const int right = pixel_of(reach.right + divisor, sample.width());
    const int bottom = pixel_of(reach.bottom + divisor, sample.height());
    for (int y = pixel_of(reach.top, sample.height()); y < bottom; ++y) {
        const auto row = sample.row(sample.height() - 1 - y);
        for (int x = left; x < right; ++x) {
            const point middle{.x = (x + 0.5) * divisor, .y = (y + 0.5) * divisor};
            if (const auto color = piece_color(piece, back(middle), divisor))
                row[static_cast<std::size_t>(x)] = *color;
        }
    }
}

}  // namespace

std::vector<sample_piece> sample_pieces(const matrix_choices & choices)
{
    if (!matrix_fault(choices).empty())
        return {};
    const matrix_layout layout = matrix_layout_of(choices, run_size::full);
    return choices.frames ? framed_pieces(framed_cells(choices, layout))
                          : grid_pieces(choices, grid_of(layout));
}

bitmap drawn_sample(const matrix_choices & choices, int divisor)
{
    const poster_area poster = whole_poster(choices.poster);
    bitmap sample(poster.width / divisor, poster.height / divisor);
    fill(sample, paper);
    for (const sample_piece & piece : sample_pieces(choices))
        paint_piece(sample, piece, divisor);
    return sample;
}
