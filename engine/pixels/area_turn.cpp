#include "engine/pixels/area_turn.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

/// A turn in the two steps that the library takes: quarters first, then at most 45 degrees to either side.
/// Both are clockwise.
struct turn_steps {
    int quarters = 0;
    int rest = 0;  ///< degrees; a small turn to the left counts as 315 to 359
};

turn_steps steps_of(int degrees)
{
    const int clockwise = ((-degrees) % 360 + 360) % 360;
    if (clockwise > 315)
        return {.quarters = 0, .rest = clockwise};  // the sine of 330 degrees is not quite that of -30
    const int quarters = (clockwise + 44) / 90;
    return {.quarters = quarters, .rest = clockwise - quarters * 90};
}

picture_size after_quarters(picture_size size, int quarters)
{
    return quarters % 2 == 0 ? size : picture_size{.width = size.height, .height = size.width};
}

/// The rest of a turn is three shears: rows sideways, columns up and down, rows sideways. The numbers are
/// those of the library, sums formed in its order, so that every rounding falls alike.
struct shear_starts {
    int middle_width = 0;  ///< of the picture after the first shear, and after the second
    picture_size result;
    double sine = 0, half = 0;                ///< half: tangent of half the angle
    double first = 0, second = 0, third = 0;  ///< shift of row 0, column 0, row 0
};

struct shears {
    int middle_width = 0;
    picture_size result;
    std::vector<double> first, second, third;  ///< shift of each row, column, row
};

double radians(int degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

int rounded_up_half(double value)
{
    return static_cast<int>(value + 0.5);
}

picture_size sheared_size(picture_size size, int degrees)
{
    const double sine = std::fabs(std::sin(radians(degrees))), cosine = std::cos(radians(degrees));
    return {.width = rounded_up_half(size.height * sine + size.width * cosine) + 1,
            .height = rounded_up_half(size.width * sine + size.height * cosine) + 1};
}

double first_shift(int row, int height, double half)
{
    return half >= 0 ? (row + 0.5) * half : (static_cast<double>(row) - height + 0.5) * half;
}

shear_starts starts_of(picture_size size, int degrees)
{
    shear_starts made;
    made.sine = std::sin(radians(degrees));
    made.half = std::tan(radians(degrees) / 2);
    made.middle_width = size.width + rounded_up_half(size.height * std::fabs(made.half));
    made.result = sheared_size(size, degrees);
    made.first = first_shift(0, size.height, made.half);
    made.second = made.sine > 0 ? (size.width - 1.0) * made.sine
                                : -made.sine * (static_cast<double>(size.width) - made.middle_width);
    made.third = made.sine >= 0 ? (size.width - 1.0) * made.sine * -made.half
                                : made.half * ((size.width - 1.0) * -made.sine + (1.0 - made.result.height));
    return made;
}

std::vector<double> growing(int count, double start, double step)
{
    std::vector<double> sums(static_cast<std::size_t>(count));
    for (double & sum : sums) {
        sum = start;
        start += step;
    }
    return sums;
}

shears shears_of(picture_size size, int degrees)
{
    const shear_starts starts = starts_of(size, degrees);
    shears made{.middle_width = starts.middle_width,
                .result = starts.result,
                .first = std::vector<double>(static_cast<std::size_t>(size.height)),
                .second = growing(starts.middle_width, starts.second, -starts.sine),
                .third = growing(starts.result.height, starts.third, starts.half)};
    for (int row = 0; row < size.height; ++row)
        made.first[static_cast<std::size_t>(row)] = first_shift(row, size.height, starts.half);
    return made;
}

int floor_of(double shift)
{
    return static_cast<int>(std::floor(shift));
}

/// What a pixel hands on to its neighbour under a shift by a part of a pixel, for each byte.
using share_table = std::array<std::uint8_t, 256>;

void fill_shares(share_table & shares, double shift)
{
    const double weight = shift - floor_of(shift);
    for (int byte = 0; byte < 256; ++byte)
        shares[static_cast<std::size_t>(byte)] = static_cast<std::uint8_t>(byte * weight + 0.5);
}

marked_pixel share_of(const share_table & shares, marked_pixel pixel)
{
    return shares[pixel & 255] | static_cast<marked_pixel>(shares[pixel >> 8 & 255]) << 8 |
           static_cast<marked_pixel>(shares[pixel >> 16 & 255]) << 16 |
           static_cast<marked_pixel>(shares[pixel >> 24]) << 24;
}

/// Puts columns `first` to `last` of a shifted row into `into`. `before` holds the row as it was from column
/// first - floor(shift) - 1 on. No byte of a difference or sum leaves its place in the word: a share is never
/// larger than its pixel, and larger pixels leave more behind.
void shear_row(const marked_pixel * before, double shift, marked_pixel * into, int count)
{
    share_table shares;
    fill_shares(shares, shift);
    marked_pixel handed_on = share_of(shares, before[0]);
    for (int i = 0; i < count; ++i) {
        const marked_pixel kept = before[i + 1];
        const marked_pixel share = share_of(shares, kept);
        into[i] = kept - share + handed_on;
        handed_on = share;
    }
}

/// Columns of a row of the picture after its quarter turns.
void read_row(const marked_picture & picture, int quarters, int row, column_span columns, marked_pixel * into)
{
    const int wide = picture.size.width, high = picture.size.height, first = columns.first;
    const pixel_walk walks[4] = {{.x = first, .y = row, .step_x = 1},
                                 {.x = wide - 1 - row, .y = first, .step_y = 1},
                                 {.x = wide - 1 - first, .y = high - 1 - row, .step_x = -1},
                                 {.x = row, .y = high - 1 - first, .step_y = -1}};
    pixel_walk walk = walks[quarters];
    walk.count = columns.last - first;
    read_walk(picture, walk, into);
}

column_span widened(column_span known, int first, int last)
{
    if (known.first >= known.last)
        return {.first = first, .last = last};
    return {.first = std::min(known.first, first), .last = std::max(known.last, last)};
}

/// The columns that the third shear of a row reads, cut at the picture.
column_span before_third(const shears & made, int row, column_span wanted)
{
    const int shift = floor_of(made.third[static_cast<std::size_t>(row)]);
    return {.first = std::max(wanted.first - shift - 1, 0),
            .last = std::min(wanted.last - shift, made.middle_width)};
}

/// The picture after the first shear, as far as the wanted rows need it.
struct middle_picture {
    int low = 0, left = 0, width = 0;
    std::vector<column_span> rows;
    std::vector<marked_pixel> pixels;

    /// The columns that are there; beside them every row would read outside the picture, where all is zero.
    column_span known(column_span columns) const
    {
        return {.first = std::max(columns.first, left), .last = std::min(columns.last, left + width)};
    }

    const marked_pixel * at(int row, int column) const
    {
        return pixels.data() + static_cast<std::ptrdiff_t>(row - low) * width + (column - left);
    }
};

/// Notes for each row of the middle picture which of its columns the second shear will read. Neighbouring
/// columns mostly share their shift, so they are noted in runs.
void note_needed(const shears & made, int row, column_span columns, int height,
                 std::vector<column_span> & needed)
{
    for (int start = columns.first; start < columns.last;) {
        const int shift = floor_of(made.second[static_cast<std::size_t>(start)]);
        int end = start + 1;
        while (end < columns.last && floor_of(made.second[static_cast<std::size_t>(end)]) == shift)
            ++end;
        for (int from : {row - shift - 1, row - shift})
            if (from >= 0 && from < height)
                needed[static_cast<std::size_t>(from)] =
                    widened(needed[static_cast<std::size_t>(from)], start, end);
        start = end;
    }
}

middle_picture planned_middle(const shears & made, int height, const row_spans & wanted)
{
    std::vector<column_span> needed(static_cast<std::size_t>(height));
    int row = wanted.low;
    for (const column_span & columns : wanted.rows) {
        if (columns.first < columns.last)
            note_needed(made, row, before_third(made, row, columns), height, needed);
        ++row;
    }
    middle_picture middle;
    const auto used = [](const column_span & columns) { return columns.first < columns.last; };
    const auto low = std::ranges::find_if(needed, used);
    if (low == needed.end())
        return middle;
    const auto high = std::find_if(needed.rbegin(), needed.rend(), used).base();
    column_span all;
    for (auto columns = low; columns != high; ++columns)
        if (used(*columns))
            all = widened(all, columns->first, columns->last);
    middle.low = static_cast<int>(low - needed.begin());
    middle.left = all.first;
    middle.width = all.last - all.first;
    middle.rows.assign(low, high);
    middle.pixels.resize(middle.rows.size() * static_cast<std::size_t>(middle.width));
    return middle;
}

void fill_middle(const marked_picture & picture, int quarters, const shears & made, middle_picture & middle)
{
    std::vector<marked_pixel> before(static_cast<std::size_t>(middle.width) + 1);
    int row = middle.low;
    for (const column_span & columns : middle.rows) {
        const double shift = made.first[static_cast<std::size_t>(row)];
        const int first = columns.first - floor_of(shift) - 1, count = columns.last - columns.first;
        if (count > 0) {
            read_row(picture, quarters, row, {.first = first, .last = first + count + 1}, before.data());
            shear_row(before.data(), shift,
                      middle.pixels.data() + (middle.at(row, columns.first) - middle.pixels.data()), count);
        }
        ++row;
    }
}

/// The second shear of one row. Rows that the middle picture lacks lie outside the picture and are zero.
class column_shear {
public:
    column_shear(const shears & made, const middle_picture & picture) : middle(picture)
    {
        const auto columns = static_cast<std::size_t>(middle.width);
        shifts.resize(columns);
        shares.resize(columns);
        for (std::size_t i = 0; i < columns; ++i) {
            const double shift = made.second[static_cast<std::size_t>(middle.left) + i];
            shifts[i] = floor_of(shift);
            fill_shares(shares[i], shift);
        }
    }

    void put_row(int row, column_span columns, marked_pixel * into) const
    {
        for (int x = columns.first; x < columns.last; ++x) {
            const auto i = static_cast<std::size_t>(x - middle.left);
            const int from = row - shifts[i];
            const marked_pixel kept = value(from, x), below = value(from - 1, x);
            into[x - columns.first] =
                kept == below ? kept : kept - share_of(shares[i], kept) + share_of(shares[i], below);
        }
    }

private:
    marked_pixel value(int row, int column) const
    {
        const int index = row - middle.low;
        return index < 0 || index >= static_cast<int>(middle.rows.size()) ? 0 : *middle.at(row, column);
    }

    const middle_picture & middle;
    std::vector<int> shifts;
    std::vector<share_table> shares;
};

void turn_by_quarters(const marked_picture & picture, int quarters, const row_spans & wanted,
                      const row_taker & take)
{
    std::vector<marked_pixel> finished;
    int row = wanted.low;
    for (const column_span & columns : wanted.rows) {
        finished.resize(static_cast<std::size_t>(std::max(columns.last - columns.first, 0)));
        if (!finished.empty()) {
            read_row(picture, quarters, row, columns, finished.data());
            take(row, columns.first, finished);
        }
        ++row;
    }
}

/// The third shear, fed row by row by the second.
void finish_rows(const shears & made, const middle_picture & middle, const row_spans & wanted,
                 const row_taker & take)
{
    const column_shear columns_shear(made, middle);
    std::vector<marked_pixel> before, finished;
    int row = wanted.low;
    for (const column_span & columns : wanted.rows) {
        const int count = columns.last - columns.first;
        if (count > 0) {
            const double shift = made.third[static_cast<std::size_t>(row)];
            const int start = columns.first - floor_of(shift) - 1;
            const column_span read = middle.known(before_third(made, row, columns));
            before.assign(static_cast<std::size_t>(count) + 1, 0);
            finished.resize(static_cast<std::size_t>(count));
            if (read.first < read.last)
                columns_shear.put_row(row, read, before.data() + (read.first - start));
            shear_row(before.data(), shift, finished.data(), count);
            take(row, columns.first, finished);
        }
        ++row;
    }
}

}  // namespace

picture_size turned_size(picture_size size, int degrees)
{
    const turn_steps steps = steps_of(degrees);
    const picture_size upright = after_quarters(size, steps.quarters);
    return steps.rest == 0 ? upright : sheared_size(upright, steps.rest);
}

picture_point turned_point(picture_size size, int degrees, picture_point point)
{
    const turn_steps steps = steps_of(degrees);
    for (int quarter = 0; quarter < steps.quarters; ++quarter) {
        point = {.x = point.y, .y = size.width - point.x};
        size = after_quarters(size, 1);
    }
    if (steps.rest == 0)
        return point;
    const shear_starts made = starts_of(size, steps.rest);
    // A pixel's shift is that of its middle.
    point.x += made.first + (point.y - 0.5) * made.half;
    point.y += made.second - (point.x - 0.5) * made.sine;
    point.x += made.third + (point.y - 0.5) * made.half;
    return point;
}

void turn_rows(const marked_picture & picture, int degrees, const row_spans & wanted, const row_taker & take)
{
    const turn_steps steps = steps_of(degrees);
    if (steps.rest == 0) {
        turn_by_quarters(picture, steps.quarters, wanted, take);
        return;
    }
    const picture_size upright = after_quarters(picture.size, steps.quarters);
    const shears made = shears_of(upright, steps.rest);
    middle_picture middle = planned_middle(made, upright.height, wanted);
    fill_middle(picture, steps.quarters, made, middle);
    finish_rows(made, middle, wanted, take);
}
