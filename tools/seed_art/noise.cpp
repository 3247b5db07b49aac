#include "noise.h"

namespace {

// Inlined into a function of its own for each kind of processor; contraction is off, so each finds the same.
[[gnu::always_inline]] inline void noise_of(const many & x, const many & y, const many_seeds & seeds,
                                            unsigned more, many & found)
{
    for (std::size_t at = 0; at < together; ++at)
        found[at] = value_noise(x[at], y[at], seeds[at] + more);
}

[[gnu::always_inline]] inline void hash_of(int x, int y, unsigned seed, many & found)
{
    for (std::size_t at = 0; at < together; ++at)
        found[at] = hashed(x + static_cast<int>(at), y, seed);
}

#ifdef __x86_64__
const bool wide_registers = __builtin_cpu_supports("avx2") != 0;

[[gnu::target("avx2")]] void noise_in_wide_registers(const many & x, const many & y, const many_seeds & seeds,
                                                     unsigned more, many & found)
{
    noise_of(x, y, seeds, more, found);
}

[[gnu::target("avx2")]] void hash_in_wide_registers(int x, int y, unsigned seed, many & found)
{
    hash_of(x, y, seed, found);
}
#endif

}  // namespace

void value_noise(const many & x, const many & y, unsigned seed, many & found)
{
    value_noise(x, y, many_seeds{}, seed, found);
}

void value_noise(const many & x, const many & y, const many_seeds & seeds, unsigned more, many & found)
{
#ifdef __x86_64__
    if (wide_registers)
        return noise_in_wide_registers(x, y, seeds, more, found);
#endif
    noise_of(x, y, seeds, more, found);
}

void hashed_from(int x, int y, unsigned seed, many & found)
{
#ifdef __x86_64__
    if (wide_registers)
        return hash_in_wide_registers(x, y, seed, found);
#endif
    hash_of(x, y, seed, found);
}

void cloudy(many x, many y, int octaves, unsigned seed, many & found)
{
    float weight = 0.5F, total = 0;
    many sum{}, noise{};
    for (int octave = 0; octave < octaves; ++octave) {
        value_noise(x, y, seed + static_cast<unsigned>(octave), noise);
        for (std::size_t at = 0; at < together; ++at) {
            sum[at] += weight * noise[at];
            const float turned = 1.6F * x[at] + 1.2F * y[at];
            y[at] = -1.2F * x[at] + 1.6F * y[at];
            x[at] = turned;
        }
        total += weight;
        weight *= 0.5F;
    }
    for (std::size_t at = 0; at < together; ++at)
        found[at] = sum[at] / total;
}

float cloudy(float x, float y, int octaves, unsigned seed)
{
    float sum = 0, weight = 0.5F, total = 0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * value_noise(x, y, seed + static_cast<unsigned>(octave));
        total += weight;
        weight *= 0.5F;
        // Turned a little from octave to octave, so that the squares of the noise don't line up.
        const float turned = 1.6F * x + 1.2F * y;
        y = -1.2F * x + 1.6F * y;
        x = turned;
    }
    return sum / total;
}

float dice::next()
{
    state = state * 1664525U + 1013904223U;
    return noise::unit(noise::scrambled(state));
}
