#include "engine/pixels/scaling_rows.h"

#include <cassert>
#include <cstddef>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace {

constexpr std::size_t channels = 3;

std::uint8_t rounded(double value)
{
    // No weight is negative and they add up to 1, so the sum can't leave a byte by more than its last bits.
    return static_cast<std::uint8_t>(static_cast<int>(value + 0.5));
}

std::size_t index_of(int position)
{
    return static_cast<std::size_t>(position);
}

void across_one_by_one(const scaling_weights & weights, wanted_columns wanted, const std::uint8_t * source,
                       std::uint8_t * into)
{
    for (int x = wanted.left; x < wanted.right; ++x) {
        const scaling_window window = weights[x];
        const std::uint8_t * pixel = source + index_of(window.first) * channels;
        double blue = 0, green = 0, red = 0;
        for (const double weight : window.weights) {
            blue += weight * pixel[0];
            green += weight * pixel[1];
            red += weight * pixel[2];
            pixel += channels;
        }
        *into++ = rounded(blue);
        *into++ = rounded(green);
        *into++ = rounded(red);
    }
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

[[gnu::target("avx2")]] __m256d four_bytes(const std::uint8_t * bytes)
{
    int four;
    std::memcpy(&four, bytes, sizeof four);
    return _mm256_cvtepi32_pd(_mm_cvtepu8_epi32(_mm_cvtsi32_si128(four)));
}

[[gnu::target("avx2")]] __m128i rounded_lanes(__m256d values)
{
    return _mm256_cvttpd_epi32(_mm256_add_pd(values, _mm256_set1_pd(0.5)));
}

[[gnu::target("avx2")]] void store_four_bytes(__m128i numbers, std::uint8_t * into)
{
    const __m128i words = _mm_packus_epi32(numbers, numbers);
    const int four = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
    std::memcpy(into, &four, sizeof four);
}

// Pixels as four doubles each, of which the last counts for nothing: each is needed twice or more.
[[gnu::target("avx2")]] void widen(const std::uint8_t * source, std::size_t count, double * into)
{
    for (std::size_t i = 0; i + 1 < count; ++i, source += channels, into += lanes)
        _mm256_storeu_pd(into, four_bytes(source));
    // A fourth byte needn't be there behind the last pixel.
    for (std::size_t i = 0; i < channels; ++i)
        into[i] = source[i];
    into[channels] = 0;
}

[[gnu::target("avx2")]] void across_four_at_once(const scaling_weights & weights, wanted_columns wanted,
                                                 const std::uint8_t * source, std::uint8_t * into,
                                                 std::vector<double> & work)
{
    const int start = weights[wanted.left].first;
    const scaling_window last = weights[wanted.right - 1];
    const std::size_t count = index_of(last.first - start) + last.weights.size();
    if (work.size() < count * lanes)
        work.resize(count * lanes);
    widen(source + index_of(start) * channels, count, work.data());
    for (int x = wanted.left; x < wanted.right; ++x, into += channels) {
        const scaling_window window = weights[x];
        const double * pixel = work.data() + index_of(window.first - start) * lanes;
        __m256d sum = _mm256_setzero_pd();
        for (const double & weight : window.weights) {
            sum = _mm256_add_pd(sum, _mm256_mul_pd(_mm256_broadcast_sd(&weight), _mm256_loadu_pd(pixel)));
            pixel += lanes;
        }
        store_four_bytes(rounded_lanes(sum), into);
    }
}

[[gnu::target("avx2")]] void add_four_at_once(std::span<const double> weights,
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
        store_four_bytes(rounded_lanes(first), &into[x]);
        store_four_bytes(rounded_lanes(second), &into[x + lanes]);
        store_four_bytes(rounded_lanes(third), &into[x + 2 * lanes]);
        store_four_bytes(rounded_lanes(fourth), &into[x + 3 * lanes]);
    }
    add_one_by_one(weights, rows, into, x);
}

#endif

}  // namespace

arithmetic best_arithmetic()
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2") != 0)
        return arithmetic::four_at_once;
#endif
    return arithmetic::one_by_one;
}

void scale_across(arithmetic way, const scaling_weights & weights, wanted_columns wanted,
                  std::span<const std::uint8_t> source, std::span<std::uint8_t> into,
                  [[maybe_unused]] std::vector<double> & work)
{
    assert(wanted.left < wanted.right && wanted.right <= weights.size());
    const std::size_t bytes = index_of(wanted.right - wanted.left) * channels;
    assert(into.size() > bytes);
    if (weights.is_identity()) {
        std::memcpy(into.data(), source.data() + index_of(wanted.left) * channels, bytes);
        return;
    }
#if defined(__x86_64__)
    if (way == arithmetic::four_at_once) {
        across_four_at_once(weights, wanted, source.data(), into.data(), work);
        return;
    }
#endif
    across_one_by_one(weights, wanted, source.data(), into.data());
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
    if (way == arithmetic::four_at_once) {
        add_four_at_once(weights, rows, into);
        return;
    }
#endif
    add_one_by_one(weights, rows, into, 0);
}
