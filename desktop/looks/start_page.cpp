#include "desktop/looks/start_page.h"

#include <algorithm>

namespace {

constexpr int gap_between = 8, edge = 8;  // in pixels
constexpr int least_art = 96;             // rows in which it can still be told what it shows

int width_of_row(int count, int width)
{
    return count * width + (count - 1) * gap_between;
}

std::vector<QRect> row_of(int count, QPoint corner, QSize each)
{
    std::vector<QRect> row;
    for (int i = 0; i < count; ++i)
        row.emplace_back(corner + QPoint(i * (each.width() + gap_between), 0), each);
    return row;
}

start_places as_drawn(const start_sizes & sizes)
{
    const QRect & picture = sizes.picture;
    const int left = picture.x() + sizes.center - width_of_row(sizes.count, sizes.way.width()) / 2;
    return {picture, row_of(sizes.count, {std::max(2 * edge, left), picture.y() + sizes.art}, sizes.way)};
}

bool lie_in(const start_places & places, QSize room)
{
    const QRect whole(QPoint(0, 0), room);
    return whole.contains(places.picture) &&
           std::ranges::all_of(places.ways, [&whole](const QRect & each) { return whole.contains(each); });
}

// As large as there is room beside the edges.
QSize way_in_row(const start_sizes & sizes, QSize room)
{
    const int most = (room.width() - 2 * edge + gap_between) / sizes.count - gap_between;
    return {std::min(sizes.way.width(), most), sizes.way.height()};
}

// The art above all ways.
start_places shrunk(const start_sizes & sizes, QSize room, QSize way)
{
    const int most = room.height() - way.height() - 2 * edge;
    const int half = room.width() / 2;
    const double scale = std::min({1.0, double(most) / sizes.art, double(half) / sizes.center});
    const QSize picture = sizes.picture.size() * scale;
    const int art = qRound(sizes.art * scale), top = (room.height() - art - way.height()) / 2;
    const int left = half - qRound(sizes.center * scale);
    const QPoint corner((room.width() - width_of_row(sizes.count, way.width())) / 2, top + art);
    return {{QPoint(left, top), picture}, row_of(sizes.count, corner, way)};
}

// As large as it can be with its art in the middle of that place, over which its black may hang.
QRect picture_in(const start_sizes & sizes, const QRect & place)
{
    const int right = sizes.picture.width() - sizes.center;
    const double scale = std::min(double(place.height()) / sizes.art, place.width() / 2.0 / right);
    const QSize size = sizes.picture.size() * scale;
    return {QPoint(place.right() + 1 - place.width() / 2 + qRound(right * scale) - size.width(), place.top()),
            size};
}

// Two rows, of which the picture has the last place of the upper one: left of its art it is black.
start_places in_two_rows(const start_sizes & sizes, QSize room)
{
    const int in_row = (sizes.count + 2) / 2;
    const QSize least = sizes.least, most((room.width() - 2 * edge + gap_between) / in_row - gap_between,
                                          (room.height() - 2 * edge - gap_between) / 2);
    const QSize each = most.expandedTo(least);
    start_places places;
    for (const int top : {edge, edge + each.height() + gap_between})
        for (const QRect & cell : row_of(in_row, {edge, top}, each))
            places.ways.push_back(cell);
    const auto last_above = places.ways.begin() + in_row - 1;
    places.picture = picture_in(sizes, *last_above);
    places.ways.erase(last_above);
    places.ways.resize(static_cast<std::size_t>(sizes.count));
    return places;
}

}  // namespace

start_places placed_start(const start_sizes & sizes, QSize room)
{
    const start_places drawn = as_drawn(sizes);
    if (lie_in(drawn, room))
        return drawn;
    const QSize way = way_in_row(sizes, room);
    if (way.width() >= sizes.least.width() && room.height() >= least_art + way.height() + 2 * edge)
        return shrunk(sizes, room, way);
    return in_two_rows(sizes, room);
}

QSize least_start(const start_sizes & sizes)
{
    return {width_of_row((sizes.count + 2) / 2, sizes.least.width()) + 2 * edge,
            2 * sizes.least.height() + gap_between + 2 * edge};
}
