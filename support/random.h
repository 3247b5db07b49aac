#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>

/// Where a seeded stream of numbers stands: its seed, how often it was started anew since, and how many
/// numbers it has given since then.
struct chance_position {
    std::uint64_t seed = 0, reseeds = 0, draws = 0;
    bool operator==(const chance_position &) const = default;
};

/// Chance as a value. `next` gives a number uniform in [0, 1); `reseed` starts anew from the clock, or, for a
/// source with a seed, from the next number of that seeded stream, so that a whole session can be repeated.
struct random_source {
    std::function<double()> next;
    std::function<void()> reseed;
    std::function<chance_position()> position{};  ///< empty for a source that can't be repeated
};

/// A source that starts from the clock.
random_source clock_random();

/// A source that gives the same numbers for the same seed.
random_source seeded_random(std::uint64_t seed);

/// A source that goes on from there as the one that stood there did. It is reckoned number by number: nothing
/// for a position further than `farthest_position` steps from its seed.
std::optional<random_source> random_from(const chance_position & position);
inline constexpr std::uint64_t farthest_position = 50'000'000;

/// A source that gives these numbers in turn and asserts when it is asked for one more; reseeding changes
/// nothing.
random_source listed(std::initializer_list<double> numbers);
