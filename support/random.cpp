#include "support/random.h"

#include <cassert>
#include <chrono>
#include <memory>
#include <random>
#include <vector>

namespace {

double uniform(std::mt19937_64 & engine)
{
    return static_cast<double>(engine() >> 11) * 0x1.0p-53;
}

std::uint64_t clock_seed()
{
    return static_cast<std::uint64_t>(std::chrono::high_resolution_clock::now().time_since_epoch().count());
}

}  // namespace

random_source clock_random()
{
    const auto engine = std::make_shared<std::mt19937_64>(clock_seed());
    return {.next = [engine] { return uniform(*engine); },
            .reseed = [engine] { engine->seed(clock_seed()); }};
}

random_source seeded_random(std::uint64_t seed)
{
    const auto seeds = std::make_shared<std::mt19937_64>(seed);
    const auto engine = std::make_shared<std::mt19937_64>((*seeds)());
    return {.next = [engine] { return uniform(*engine); },
            .reseed = [seeds, engine] { engine->seed((*seeds)()); }};
}

random_source listed(std::initializer_list<double> numbers)
{
    const auto left = std::make_shared<std::vector<double>>(numbers);
    const auto used = std::make_shared<std::size_t>(0);
    return {.next =
                [left, used] {
                    assert(*used < left->size());
                    return left->at((*used)++);
                },
            .reseed = [] {}};
}
