#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>

/// Chance as a value. `next` gives a number uniform in [0, 1); `reseed` starts anew from the clock, or, for a
/// source with a seed, from the next number of that seeded stream, so that a whole session can be repeated.
struct random_source {
    std::function<double()> next;
    std::function<void()> reseed;
};

/// A source that starts from the clock.
random_source clock_random();

/// A source that gives the same numbers for the same seed.
random_source seeded_random(std::uint64_t seed);

/// A source that gives these numbers in turn and asserts when it is asked for one more; reseeding changes
/// nothing.
random_source listed(std::initializer_list<double> numbers);
