// The scatters: one for every number of photos that the limits leave, on both kinds of poster, covering it
// well.
#include "tests/seed/plain_tables.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <numbers>
#include <set>
#include <string>
#include <vector>

using namespace plain;

namespace {

constexpr int most_of_a_kind = 64;
constexpr int few = 4;  // photos: they hardly cover a poster

/// The greatest count along the poster for a count across, and the other way round.
int most_along(int cross)
{
    constexpr std::array falling{63, 61, 59, 57, 55, 53, 52, 51};
    if (cross < 30)
        return 65;
    if (cross < 38)
        return falling[static_cast<std::size_t>(cross - 30)];
    return cross < 63 ? 49 - 2 * (cross - 38) : 0;
}

int most_cross(int along)
{
    return along % 2 == 0 ? 65 - along / 2 : 63 - along / 2;
}

std::set<int> possible_totals()
{
    std::set<int> found;
    for (int along = 0; along <= most_of_a_kind; ++along)
        for (int cross = 0; cross <= most_of_a_kind; ++cross) {
            const int left = along > cross ? std::min(along, most_along(cross)) + cross
                                           : along + std::min(cross, most_cross(along));
            if (left >= 3)
                found.insert(left);
        }
    return found;
}

struct scatter {
    std::string name;
    int total, tall, wide;
    int height;  // of the poster
    std::vector<cell> cells;
};

std::vector<cell> cells_of(const std::vector<std::string> & lines, const std::string & name)
{
    std::vector<cell> cells;
    for (const std::string & line : section(lines, name)) {
        const std::vector<std::string> fields = split(line);
        EXPECT_EQ(fields.size(), 6u) << name << ": " << line;
        cells.push_back(
            {number(fields[1]), number(fields[2]), number(fields[3]), number(fields[4]), number(fields[5])});
    }
    return cells;
}

std::vector<scatter> read_scatters()
{
    const std::vector<std::string> templates = lines_of("scatter_templates");
    std::vector<scatter> found;
    int height = 3000;
    for (const std::string & line : lines_of("quick_scatter.ini")) {
        const std::vector<std::string> fields = split(line);
        if (fields.at(0) == "SQUARES") {
            height = 2000;
            continue;
        }
        EXPECT_EQ(fields.size(), 4u) << line;
        EXPECT_EQ(line.find(':'), 2u) << line;
        found.push_back({fields.at(3), number(fields.at(0)), number(fields.at(1)), number(fields.at(2)),
                         height, cells_of(templates, fields.at(3))});
    }
    return found;
}

const std::vector<scatter> & all_scatters()
{
    static const auto scatters = read_scatters();
    return scatters;
}

/// Those whose pictures are looked at, point by point.
const std::vector<scatter> & seen_scatters()
{
    static const auto scatters = swept(all_scatters());
    return scatters;
}

struct spot {
    double x, y;
};

/// Where a point of a cell, given from the cell's corner, lies on the poster.
spot placed(const cell & one, double across, double down)
{
    const double angle = one.tilt * std::numbers::pi / 180, c = std::cos(angle), s = std::sin(angle);
    return {one.left + across * c - down * s, one.top + across * s + down * c};
}

/// Where a point of the poster lies in a cell, from 0 to 1 each way inside it.
spot within(const cell & one, spot at)
{
    const double angle = one.tilt * std::numbers::pi / 180, c = std::cos(angle), s = std::sin(angle);
    const double x = at.x - one.left, y = at.y - one.top;
    return {(x * c + y * s) / one.width, (y * c - x * s) / one.height};
}

bool covers(const cell & one, spot at)
{
    const auto [across, down] = within(one, at);
    return across >= 0 && across <= 1 && down >= 0 && down <= 1;
}

/// The middle third, where faces are.
bool in_middle(const cell & one, spot at)
{
    const auto [across, down] = within(one, at);
    return std::abs(across - 0.5) < 1.0 / 6 && std::abs(down - 0.5) < 1.0 / 6;
}

using quadrangle = std::array<spot, 4>;

/// The corners of the part of a cell between those shares of its sides, in the order of reading.
quadrangle corners(const cell & one, double from = 0, double to = 1)
{
    const auto at = [&](double across, double down) {
        return placed(one, across * one.width, down * one.height);
    };
    return {at(from, from), at(to, from), at(from, to), at(to, to)};
}

/// True unless a line along a side of the first one has them on either side of it.
bool overlap_along_sides(const quadrangle & one, const quadrangle & other)
{
    for (const std::size_t neighbour : {std::size_t{1}, std::size_t{2}}) {
        const spot side{one[neighbour].x - one[0].x, one[neighbour].y - one[0].y};
        const auto along = [&](const spot & at) { return at.x * side.x + at.y * side.y; };
        const auto [least, most] = std::ranges::minmax(one, {}, along);
        const auto [others_least, others_most] = std::ranges::minmax(other, {}, along);
        if (along(most) <= along(others_least) || along(others_most) <= along(least))
            return false;
    }
    return true;
}

bool overlap(const quadrangle & one, const quadrangle & other)
{
    return overlap_along_sides(one, other) && overlap_along_sides(other, one);
}

/// How far the cell hangs over the poster where it hangs over most.
double overhang(const cell & one, int height)
{
    double most = 0;
    for (const spot & at : corners(one))
        most = std::max({most, -at.x, -at.y, at.x - 2000, at.y - height});
    return most;
}

/// The poster's points, 20 pixels apart, each with the cells that lie there.
struct look {
    int points = 0, bare = 0;
    std::array<int, 4> corner_points{}, corner_bare{};  // of the squares of 240 pixels in the corners
    std::vector<int> inside, shown;                     // by cell
    std::vector<int> middle, middle_shown;              // the same for its middle third
};

constexpr int step = 20, corner = 240;

/// What lies on the points: the cell that is seen, or -1, and whether it is its middle that is.
struct covering {
    std::vector<int> cell;
    std::vector<bool> middle;
};

/// Lays a cell over the points about it.
void lay(const cell & one, int height, covering & points, look & found)
{
    const int which = static_cast<int>(found.inside.size());
    found.inside.push_back(0);
    found.middle.push_back(0);
    const auto [left, right] = std::ranges::minmax(corners(one), {}, &spot::x);
    const auto [top, bottom] = std::ranges::minmax(corners(one), {}, &spot::y);
    const auto first = [](double from) { return std::max(0, static_cast<int>(from / step)); };
    for (int row = first(top.y); row < std::min(height / step, first(bottom.y) + 1); ++row)
        for (int column = first(left.x); column < std::min(2000 / step, first(right.x) + 1); ++column) {
            const spot at{(column + 0.5) * step, (row + 0.5) * step};
            if (!covers(one, at))
                continue;
            const auto point =
                static_cast<std::size_t>(row) * (2000 / step) + static_cast<std::size_t>(column);
            points.cell[point] = which;
            points.middle[point] = in_middle(one, at);
            ++found.inside.back();
            found.middle.back() += points.middle[point] ? 1 : 0;
        }
}

void count(const covering & points, int height, look & found)
{
    found.shown.resize(found.inside.size());
    found.middle_shown.resize(found.inside.size());
    for (std::size_t point = 0; point < points.cell.size(); ++point) {
        const int top = points.cell[point];
        if (top >= 0) {
            ++found.shown[static_cast<std::size_t>(top)];
            found.middle_shown[static_cast<std::size_t>(top)] += points.middle[point] ? 1 : 0;
        }
        ++found.points;
        found.bare += top < 0 ? 1 : 0;
        const int x = static_cast<int>(point) % (2000 / step) * step,
                  y = static_cast<int>(point) / (2000 / step) * step;
        if ((x < corner || x >= 2000 - corner) && (y < corner || y >= height - corner)) {
            const std::size_t which = (x < corner ? 0u : 1u) + (y < corner ? 0u : 2u);
            ++found.corner_points[which];
            found.corner_bare[which] += top < 0 ? 1 : 0;
        }
    }
}

look looked_at(const scatter & one)
{
    const auto points = static_cast<std::size_t>(2000 / step) * static_cast<std::size_t>(one.height / step);
    covering seen{std::vector<int>(points, -1), std::vector<bool>(points)};
    look found;
    for (const cell & each : one.cells)
        lay(each, one.height, seen, found);
    count(seen, one.height, found);
    return found;
}

/// The cell turned from tall to wide or back about its middle, as near as whole numbers allow.
cell turned(const cell & one)
{
    const int quarter = one.tall() ? one.width / 4 : -one.width / 4;
    return {one.top + quarter, one.left - quarter, one.width, one.height, one.tilt};
}

}  // namespace

TEST(scatter_tables, both_lists_hold_every_total_ascending)
{
    const std::set<int> wanted = possible_totals();
    EXPECT_EQ(*wanted.begin(), 3);
    EXPECT_EQ(*wanted.rbegin(), 97);
    for (const int height : {3000, 2000}) {
        std::vector<int> totals;
        for (const scatter & one : all_scatters())
            if (one.height == height)
                totals.push_back(one.total);
        EXPECT_TRUE(std::ranges::equal(totals, wanted)) << height;
    }
}

TEST(scatter_tables, have_one_line_between_the_lists_no_blank_one_and_no_exact_list)
{
    const std::vector<std::string> lines = lines_of("quick_scatter.ini");
    EXPECT_EQ(std::ranges::count(lines, "SQUARES"), 1);
    for (const std::string & line : lines)
        EXPECT_FALSE(line.empty() || line.starts_with('-') || line.starts_with('#')) << line;
    for (const std::string & line : lines_of("scatter_templates"))
        EXPECT_FALSE(line.empty());
}

TEST(scatter_tables, every_scatter_has_its_own_template_and_as_many_cells_as_its_line_says)
{
    std::set<std::string> names;
    for (const scatter & one : all_scatters()) {
        EXPECT_TRUE(names.insert(one.name).second) << one.name;
        EXPECT_EQ(one.cells.size(), static_cast<std::size_t>(one.total)) << one.name;
        EXPECT_EQ(std::ranges::count_if(one.cells, &cell::tall), one.tall) << one.name;
        EXPECT_EQ(std::ranges::count_if(one.cells, &cell::wide), one.wide) << one.name;
    }
    EXPECT_EQ(std::ranges::count_if(lines_of("scatter_templates"),
                                    [](const std::string & line) { return line.starts_with('['); }),
              static_cast<long>(names.size()));
}

TEST(scatter_tables, every_scatter_is_drawn_with_as_many_tall_cells_as_wide_ones_or_one_less)
{
    for (const scatter & one : all_scatters())
        EXPECT_LE(std::abs(one.tall - one.wide), 1) << one.name;
}

TEST(scatter_tables, tilts_are_fives_and_keep_within_the_numbers_of_the_program)
{
    for (const scatter & one : all_scatters())
        for (const cell & each : one.cells) {
            EXPECT_EQ(each.tilt % 5, 0) << one.name;
            EXPECT_LE(std::abs(each.tilt), 35) << one.name;
            EXPECT_LE(std::max(each.height, each.width) * std::abs(each.tilt), 32767) << one.name;
        }
}

TEST(scatter_tables, nothing_hangs_over_further_than_a_preview_can_draw)
{
    for (const scatter & one : all_scatters())
        for (const cell & each : one.cells)
            EXPECT_LE(overhang(each, one.height), 135) << one.name;
}

TEST(scatter_tables, cover_the_poster_and_its_corners)
{
    for (const scatter & one : seen_scatters()) {
        const look found = looked_at(one);
        EXPECT_LT(found.bare, found.points * (one.total == 3 ? 12 : 6) / 100) << one.name;
        for (std::size_t which = 0; which < 4; ++which)
            EXPECT_LT(found.corner_bare[which], found.corner_points[which] * (one.total <= 4 ? 75 : 60) / 100)
                << one.name << " " << which;
    }
}

TEST(scatter_tables, hide_no_photo_by_more_than_two_fifths)
{
    for (const scatter & one : seen_scatters()) {
        const look found = looked_at(one);
        for (std::size_t i = 0; i < one.cells.size(); ++i)
            EXPECT_GE(found.shown[i], found.inside[i] * 0.6) << one.name << " " << i + 1;
    }
}

TEST(scatter_tables, never_have_a_photo_over_the_middle_third_of_another)
{
    for (const scatter & one : seen_scatters())
        for (std::size_t below = 0; below < one.cells.size(); ++below)
            for (std::size_t above = below + 1; above < one.cells.size(); ++above)
                EXPECT_FALSE(overlap(corners(one.cells[below], 1.0 / 3, 2.0 / 3), corners(one.cells[above])))
                    << one.name << " " << above + 1 << " over " << below + 1;
}

TEST(scatter_tables, hide_no_photo_by_much_when_all_of_a_kind_are_turned)
{
    for (const scatter & one : seen_scatters())
        for (const bool tall : {false, true}) {
            scatter all_turned = one;
            for (cell & each : all_turned.cells)
                each = each.tall() == tall ? turned(each) : each;
            const look found = looked_at(all_turned);
            for (std::size_t i = 0; i < one.cells.size(); ++i) {
                EXPECT_GE(found.shown[i], found.inside[i] * 0.55) << one.name << " " << i + 1;
                EXPECT_GE(found.middle_shown[i], found.middle[i] * 0.79) << one.name << " " << i + 1;
            }
            EXPECT_LT(found.bare, found.points * (one.total <= few ? 25 : 16) / 100) << one.name;
        }
}

TEST(scatter_tables, a_photo_stays_as_large_as_it_was_and_near_its_place_when_it_is_turned)
{
    for (const scatter & one : all_scatters())
        for (const cell & each : one.cells) {
            EXPECT_NEAR(each.ratio(), 1.5, 0.001) << one.name;
            EXPECT_LT(overhang(turned(each), one.height), one.total < 12 ? 560 : 350) << one.name;
        }
}

TEST(scatter_tables, cells_with_room_to_turn_stand_first)
{
    for (const scatter & one : all_scatters()) {
        const auto half = static_cast<std::ptrdiff_t>(one.cells.size() / 2);
        const auto crowded = [&](auto from, auto to) {
            return std::count_if(from, to,
                                 [&](const cell & each) { return overhang(turned(each), one.height) > 150; });
        };
        EXPECT_LE(crowded(one.cells.begin(), one.cells.begin() + half),
                  crowded(one.cells.begin() + half, one.cells.end()))
            << one.name;
    }
}
