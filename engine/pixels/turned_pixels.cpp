#include "engine/pixels/turned_pixels.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace {

constexpr int weight_bits = 8;
constexpr int whole_weight = 1 << weight_bits;
constexpr int half = 1 << (2 * weight_bits - 1);
constexpr int wholly_covered = 255;

int weight_of(fine_place place)
{
    return static_cast<int>(place >> (place_bits - weight_bits)) & (whole_weight - 1);
}

/// Where a pixel of the canvas lies between four of the picture: the upper left one's column and row, and how
/// far on it lies.
struct spot_between {
    int column = 0, row = 0, right = 0, down = 0;
};

spot_between between_of(const fine_spot & spot)
{
    return {.column = static_cast<int>(spot.column >> place_bits),
            .row = static_cast<int>(spot.line >> place_bits),
            .right = weight_of(spot.column),
            .down = weight_of(spot.line)};
}

const pixel * pixel_at(const std::vector<const pixel *> & rows, int column, int row)
{
    return rows[static_cast<std::size_t>(row)] + column;
}

/// Four neighbours, and what each of them weighs, of 65,536 in all.
class neighbours {
public:
    neighbours(const std::vector<const pixel *> & rows, const spot_between & between)
        : upper(pixel_at(rows, between.column, between.row)),
          lower(pixel_at(rows, between.column, between.row + 1))
    {
        const int left = whole_weight - between.right, up = whole_weight - between.down;
        weights = {left * up, between.right * up, left * between.down, between.right * between.down};
    }

    std::uint8_t mixed(std::uint8_t pixel::*channel) const
    {
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
    return (across * along * 255 + half) >> (2 * weight_bits);
}

/// Mostly all four are the same.
int cover_between(const std::vector<const pixel *> & covers, const spot_between & between)
{
    const pixel * const upper = pixel_at(covers, between.column, between.row);
    const pixel * const lower = pixel_at(covers, between.column, between.row + 1);
    const std::uint8_t one = upper[0].red;
    if (upper[1].red == one && lower[0].red == one && lower[1].red == one)
        return one;
    return neighbours(covers, between).mixed(&pixel::red);
}

int cover_at(const turned_source & source, const spot_between & between)
{
    return source.covers.empty() ? cover_of_filled(source.filled, between)
                                 : cover_between(source.covers, between);
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

void put_pixel(const turned_source & source, pixel & into, const fine_spot & spot)
{
    const spot_between between = between_of(spot);
    const int cover = cover_at(source, between);
    if (cover == wholly_covered)
        into = neighbours(source.colors, between).mixed();
    else if (cover > 0)
        into = laid(into, neighbours(source.colors, between).mixed(), cover);
}

void put_one_by_one(const turned_source & source, const turned_row & row)
{
    fine_spot spot = row.start;
    for (pixel & into : row.into) {
        put_pixel(source, into, spot);
        spot = further(spot, row.step, 1);
    }
}

#if defined(__x86_64__)

// What has this target is called only where best_arithmetic has found it. Two pixels at a time, one in each
// half of a register: blue, green and red as numbers of 32 bits, and one that means nothing.

// No byte beside the two pixels is touched: they may be the last ones of the bitmap.
[[gnu::target("avx2")]] inline __m128i two_pixels(const pixel * from)
{
    int four;
    short two;
    const auto * const bytes = reinterpret_cast<const std::uint8_t *>(from);
    std::memcpy(&four, bytes, sizeof four);
    std::memcpy(&two, bytes + sizeof four, sizeof two);
    return _mm_insert_epi16(_mm_cvtsi32_si128(four), two, 2);
}

struct two_spots {
    spot_between first, second;
};

[[gnu::target("avx2")]] inline __m256i in_halves(int first, int second)
{
    return _mm256_set_m128i(_mm_set1_epi32(second), _mm_set1_epi32(first));
}

// What lies in a row on both sides of a place, weighed.
[[gnu::target("avx2")]] inline __m256i weighed_across(__m128i first, __m128i second, __m256i weights)
{
    const __m256i pairs = _mm256_setr_epi8(0, -1, 3, -1, 1, -1, 4, -1, 2, -1, 5, -1, -1, -1, -1, -1,  //
                                           0, -1, 3, -1, 1, -1, 4, -1, 2, -1, 5, -1, -1, -1, -1, -1);
    return _mm256_madd_epi16(_mm256_shuffle_epi8(_mm256_set_m128i(second, first), pairs), weights);
}

[[gnu::target("avx2")]] inline __m256i mixed(const std::vector<const pixel *> & rows, const two_spots & at)
{
    const auto & [first, second] = at;
    const auto across = [](int right) { return (whole_weight - right) | right << 16; };
    const __m256i sides = in_halves(across(first.right), across(second.right));
    const __m256i upper = weighed_across(two_pixels(pixel_at(rows, first.column, first.row)),
                                         two_pixels(pixel_at(rows, second.column, second.row)), sides);
    const __m256i lower = weighed_across(two_pixels(pixel_at(rows, first.column, first.row + 1)),
                                         two_pixels(pixel_at(rows, second.column, second.row + 1)), sides);
    const __m256i down = in_halves(first.down, second.down),
                  up = _mm256_sub_epi32(_mm256_set1_epi32(whole_weight), down);
    const __m256i sum = _mm256_add_epi32(_mm256_mullo_epi32(upper, up), _mm256_mullo_epi32(lower, down));
    return _mm256_srli_epi32(_mm256_add_epi32(sum, _mm256_set1_epi32(half)), 2 * weight_bits);
}

// Exact for all that two bytes can give, up to 65,534.
[[gnu::target("avx2")]] inline __m256i by_255(__m256i numbers)
{
    const __m256i more =
        _mm256_add_epi32(_mm256_add_epi32(numbers, _mm256_set1_epi32(1)), _mm256_srli_epi32(numbers, 8));
    return _mm256_srli_epi32(more, 8);
}

[[gnu::target("avx2")]] inline __m256i laid(__m256i below, __m256i above, __m256i covers)
{
    const __m256i all = _mm256_set1_epi32(wholly_covered);
    const __m256i left = _mm256_mullo_epi32(below, _mm256_sub_epi32(all, covers));
    const __m256i sum = _mm256_add_epi32(above, by_255(_mm256_add_epi32(left, _mm256_set1_epi32(127))));
    const __m256i untouched = _mm256_cmpeq_epi32(covers, _mm256_setzero_si256());
    return _mm256_blendv_epi8(_mm256_min_epi32(sum, all), below, untouched);
}

[[gnu::target("avx2")]] inline __m256i numbers_of(__m128i pixels)
{
    const __m256i apart = _mm256_setr_epi8(0, -1, -1, -1, 1, -1, -1, -1, 2, -1, -1, -1, -1, -1, -1, -1,  //
                                           3, -1, -1, -1, 4, -1, -1, -1, 5, -1, -1, -1, -1, -1, -1, -1);
    return _mm256_shuffle_epi8(_mm256_broadcastsi128_si256(pixels), apart);
}

[[gnu::target("avx2")]] void store_two_pixels(__m256i numbers, pixel * into)
{
    const __m128i words =
        _mm_packus_epi32(_mm256_castsi256_si128(numbers), _mm256_extracti128_si256(numbers, 1));
    const __m128i together = _mm_setr_epi8(0, 2, 4, 8, 10, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1);
    const __m128i bytes = _mm_shuffle_epi8(words, together);
    const int four = _mm_cvtsi128_si32(bytes);
    const auto two = static_cast<short>(_mm_extract_epi16(bytes, 2));
    auto * const to = reinterpret_cast<std::uint8_t *>(into);
    std::memcpy(to, &four, sizeof four);
    std::memcpy(to + sizeof four, &two, sizeof two);
}

// Gives the number of pixels done; one at the end may be left.
[[gnu::target("avx2")]] int put_two_at_once(const turned_source & source, const turned_row & row)
{
    const int count = static_cast<int>(row.into.size());
    fine_spot spot = row.start;
    int x = 0;
    for (; x + 2 <= count; x += 2) {
        const fine_spot next = further(spot, row.step, 1);
        const two_spots at{.first = between_of(spot), .second = between_of(next)};
        pixel * const into = row.into.data() + x;
        const int cover = cover_at(source, at.first), other = cover_at(source, at.second);
        if (cover == wholly_covered && other == wholly_covered)
            store_two_pixels(mixed(source.colors, at), into);
        else if (cover != 0 || other != 0)
            store_two_pixels(
                laid(numbers_of(two_pixels(into)), mixed(source.colors, at), in_halves(cover, other)), into);
        spot = further(next, row.step, 1);
    }
    _mm256_zeroupper();  // or all that follows is slow: a compiler may forget it in front of a jump
    return x;
}

#endif

}  // namespace

std::vector<const pixel *> rows_from_top(const bitmap & image)
{
    std::vector<const pixel *> rows;
    for (int y = image.height() - 1; y >= 0; --y)
        rows.push_back(image.row(y).data());
    return rows;
}

void put_turned(const turned_source & source, const turned_row & row, [[maybe_unused]] arithmetic way)
{
    int done = 0;
#if defined(__x86_64__)
    if (way == arithmetic::many_at_once)
        done = put_two_at_once(source, row);
#endif
    put_one_by_one(source, {.into = row.into.subspan(static_cast<std::size_t>(done)),
                            .start = further(row.start, row.step, done),
                            .step = row.step});
}
