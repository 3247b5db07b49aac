#include "engine/pixels/scaling_rows.h"

#include <cassert>
#include <cstddef>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace {

constexpr std::size_t bytes_of_pixel = 3;

std::uint8_t rounded(double value)
{
    // No weight is negative and they add up to 1, so the sum can't leave a byte by more than its last bits.
    return static_cast<std::uint8_t>(static_cast<int>(value + 0.5));
}

std::size_t index_of(int position)
{
    return static_cast<std::size_t>(position);
}

void sum_up(const scaling_window & window, const std::uint8_t * source, std::uint8_t * into)
{
    const std::uint8_t * pixel = source + index_of(window.first) * bytes_of_pixel;
    double blue = 0, green = 0, red = 0;
    for (const double weight : window.weights) {
        blue += weight * pixel[0];
        green += weight * pixel[1];
        red += weight * pixel[2];
        pixel += bytes_of_pixel;
    }
    into[0] = rounded(blue);
    into[1] = rounded(green);
    into[2] = rounded(red);
}

void across_one_by_one(const row_scaling & scaling, const row_across & row)
{
    std::uint8_t * into = row.into;
    for (int x = scaling.left; x < scaling.right; ++x, into += bytes_of_pixel)
        sum_up(scaling.weights[x], row.from, into);
}

// Bytes from `from` on.
void add_one_by_one(std::span<const double> weights, std::span<const std::uint8_t * const> rows,
                    std::span<std::uint8_t> into, std::size_t from)
{
    for (std::size_t x = from; x < into.size(); ++x) {
        double value = 0;
        for (std::size_t i = 0; i < weights.size(); ++i)
            value += weights[i] * rows[i][x];
        into[x] = rounded(value);
    }
}

#if defined(__x86_64__)

// What has this target is called only where best_arithmetic has found it.

constexpr std::size_t lanes = 4;

// Short windows don't outweigh what it takes to see whether a coarse sum settles the byte.
bool is_worth_weighing_coarsely(const row_scaling & scaling)
{
    constexpr int pixels = 6;
    return scaling.way == arithmetic::many_at_once && scaling.weights.longest() >= pixels;
}

// Blue and green of four pixels in the lower half, red in the upper one, as pairs of 16 bits: a product of
// pairs then meets the same four weights in both.
[[gnu::target("avx2")]] __m256i channels_apart(const std::uint8_t * pixels)
{
    const __m256i order = _mm256_setr_epi8(0, -1, 3, -1, 6, -1, 9, -1, 1, -1, 4, -1, 7, -1, 10, -1,  //
                                           2, -1, 5, -1, 8, -1, 11, -1, -1, -1, -1, -1, -1, -1, -1, -1);
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pixels));
    return _mm256_shuffle_epi8(_mm256_broadcastsi128_si256(bytes), order);
}

// Blue and green of the first row's pixel and of the second's in the lower half, their reds in the upper one.
[[gnu::target("avx2")]] __m256i coarse_sums(std::span<const std::int16_t> weights, const std::uint8_t * first,
                                            const std::uint8_t * second)
{
    __m256i sums = _mm256_setzero_si256(), others = sums;
    for (std::size_t i = 0; i < weights.size(); i += coarse_weights::group) {
        long long four;
        std::memcpy(&four, &weights[i], sizeof four);
        const __m256i weight = _mm256_set1_epi64x(four);
        sums = _mm256_add_epi32(sums, _mm256_madd_epi16(channels_apart(first + i * bytes_of_pixel), weight));
        others =
            _mm256_add_epi32(others, _mm256_madd_epi16(channels_apart(second + i * bytes_of_pixel), weight));
    }
    return _mm256_hadd_epi32(sums, others);
}

[[gnu::target("avx2")]] void store_pixels(__m256i numbers, std::uint8_t * first, std::uint8_t * second)
{
    const __m128i words =
        _mm_packus_epi32(_mm256_castsi256_si128(numbers), _mm256_extracti128_si256(numbers, 1));
    const __m128i order = _mm_setr_epi8(0, 1, 4, -1, 2, 3, 6, -1, -1, -1, -1, -1, -1, -1, -1, -1);
    const __m128i bytes = _mm_shuffle_epi8(_mm_packus_epi16(words, words), order);
    const int pixel = _mm_cvtsi128_si32(bytes), other = _mm_extract_epi32(bytes, 1);
    std::memcpy(first, &pixel, sizeof pixel);
    std::memcpy(second, &other, sizeof other);
}

[[gnu::target("avx2")]] void across_coarsely(const row_scaling & scaling, row_across first, row_across second)
{
    for (int x = scaling.left; x < scaling.right;
         ++x, first.into += bytes_of_pixel, second.into += bytes_of_pixel) {
        const coarse_window window = scaling.coarse[x];
        const int one = 1 << window.bits;
        const std::size_t start = index_of(window.first) * bytes_of_pixel;
        const __m256i sums =
            _mm256_add_epi32(coarse_sums(window.weights, first.from + start, second.from + start),
                             _mm256_set1_epi32(one / 2 + window.doubt));
        // Where the doubt reaches the next byte or the one before, the true sum may lie there.
        const __m256i part = _mm256_and_si256(sums, _mm256_set1_epi32(one - 1));
        if (_mm256_movemask_epi8(_mm256_cmpgt_epi32(_mm256_set1_epi32(2 * window.doubt), part)) == 0) {
            store_pixels(_mm256_sra_epi32(sums, _mm_cvtsi32_si128(window.bits)), first.into, second.into);
        } else {
            sum_up(scaling.weights[x], first.from, first.into);
            sum_up(scaling.weights[x], second.from, second.into);
        }
    }
    _mm256_zeroupper();  // or all that follows is slow: a compiler may forget it in front of a jump
}

[[gnu::target("avx2")]] __m256d four_bytes(const std::uint8_t * bytes)
{
    int four;
    std::memcpy(&four, bytes, sizeof four);
    return _mm256_cvtepi32_pd(_mm_cvtepu8_epi32(_mm_cvtsi32_si128(four)));
}

[[gnu::target("avx2")]] void store_rounded(__m256d values, std::uint8_t * into)
{
    const __m128i numbers = _mm256_cvttpd_epi32(_mm256_add_pd(values, _mm256_set1_pd(0.5)));
    const __m128i words = _mm_packus_epi32(numbers, numbers);
    const int four = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
    std::memcpy(into, &four, sizeof four);
}

[[gnu::target("avx2")]] void across_in_doubles(const row_scaling & scaling, row_across row)
{
    for (int x = scaling.left; x < scaling.right; ++x, row.into += bytes_of_pixel) {
        const scaling_window window = scaling.weights[x];
        const std::uint8_t * pixel = row.from + index_of(window.first) * bytes_of_pixel;
        __m256d sums = _mm256_setzero_pd();
        for (const double & weight : window.weights) {
            sums = _mm256_add_pd(sums, _mm256_mul_pd(_mm256_broadcast_sd(&weight), four_bytes(pixel)));
            pixel += bytes_of_pixel;
        }
        store_rounded(sums, row.into);
    }
    _mm256_zeroupper();  // as above
}

// Gives the number of bytes done; the few at the end are left.
[[gnu::target("avx2")]] std::size_t add_many_at_once(std::span<const double> weights,
                                                     std::span<const std::uint8_t * const> rows,
                                                     std::span<std::uint8_t> into)
{
    constexpr std::size_t step = 4 * lanes;  // four sums hide how long an addition takes
    std::size_t x = 0;
    for (; x + step <= into.size(); x += step) {
        __m256d first = _mm256_setzero_pd(), second = first, third = first, fourth = first;
        for (std::size_t i = 0; i < weights.size(); ++i) {
            const __m256d weight = _mm256_broadcast_sd(&weights[i]);
            const std::uint8_t * bytes = rows[i] + x;
            first = _mm256_add_pd(first, _mm256_mul_pd(weight, four_bytes(bytes)));
            second = _mm256_add_pd(second, _mm256_mul_pd(weight, four_bytes(bytes + lanes)));
            third = _mm256_add_pd(third, _mm256_mul_pd(weight, four_bytes(bytes + 2 * lanes)));
            fourth = _mm256_add_pd(fourth, _mm256_mul_pd(weight, four_bytes(bytes + 3 * lanes)));
        }
        store_rounded(first, &into[x]);
        store_rounded(second, &into[x + lanes]);
        store_rounded(third, &into[x + 2 * lanes]);
        store_rounded(fourth, &into[x + 3 * lanes]);
    }
    _mm256_zeroupper();  // as above
    return x;
}

#endif

}  // namespace

arithmetic best_arithmetic()
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2") != 0)
        return arithmetic::many_at_once;
#endif
    return arithmetic::one_by_one;
}

row_scaling row_scaling_of(arithmetic way, int source, int target)
{
    row_scaling made{.way = way, .weights = {source, target}, .coarse = {}, .left = 0, .right = target};
    if (way == arithmetic::many_at_once && source != target)
        made.coarse = coarse_weights(made.weights);
    return made;
}

void scale_across(const row_scaling & scaling, const row_across & row)
{
    assert(scaling.left < scaling.right && scaling.right <= scaling.weights.size());
    if (scaling.weights.is_identity()) {
        std::memcpy(row.into, row.from + index_of(scaling.left) * bytes_of_pixel,
                    index_of(scaling.right - scaling.left) * bytes_of_pixel);
        return;
    }
#if defined(__x86_64__)
    if (scaling.way == arithmetic::many_at_once) {
        if (is_worth_weighing_coarsely(scaling))
            across_coarsely(scaling, row, row);
        else
            across_in_doubles(scaling, row);
        return;
    }
#endif
    across_one_by_one(scaling, row);
}

void scale_across(const row_scaling & scaling, const row_across & first, const row_across & second)
{
#if defined(__x86_64__)
    if (is_worth_weighing_coarsely(scaling)) {
        across_coarsely(scaling, first, second);
        return;
    }
#endif
    scale_across(scaling, first);
    scale_across(scaling, second);
}

void add_rows(arithmetic way, std::span<const double> weights, std::span<const std::uint8_t * const> rows,
              std::span<std::uint8_t> into)
{
    assert(weights.size() == rows.size());
    if (weights.size() == 1 && weights.front() == 1) {
        std::memcpy(into.data(), rows.front(), into.size());
        return;
    }
#if defined(__x86_64__)
    if (way == arithmetic::many_at_once) {
        add_one_by_one(weights, rows, into, add_many_at_once(weights, rows, into));
        return;
    }
#endif
    add_one_by_one(weights, rows, into, 0);
}
