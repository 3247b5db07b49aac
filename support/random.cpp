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

// The stream of seeds, the stream of numbers, and where they stand.
struct seeded_stream {
    explicit seeded_stream(std::uint64_t seed) : at{.seed = seed}, seeds(seed), numbers(seeds()) {}

    double next()
    {
        ++at.draws;
        return uniform(numbers);
    }

    void reseed()
    {
        ++at.reseeds;
        at.draws = 0;
        numbers.seed(seeds());
    }

    void go_to(const chance_position & wanted)
    {
        seeds.seed(wanted.seed);
        seeds.discard(wanted.reseeds);
        numbers.seed(seeds());
        numbers.discard(wanted.draws);
        at = wanted;
    }

    chance_position at;
    std::mt19937_64 seeds, numbers;
};

random_source source_over(const std::shared_ptr<seeded_stream> & stream)
{
    return {.next = [stream] { return stream->next(); },
            .reseed = [stream] { stream->reseed(); },
            .position = [stream] { return stream->at; }};
}

}  // namespace

// One look at the clock makes a stream as unforeseen as many would, and it can be told where it stands.
random_source clock_random()
{
    return seeded_random(clock_seed());
}

random_source seeded_random(std::uint64_t seed)
{
    return source_over(std::make_shared<seeded_stream>(seed));
}

std::optional<random_source> random_from(const chance_position & position)
{
    if (position.reseeds > farthest_position || position.draws > farthest_position)
        return std::nullopt;
    const auto stream = std::make_shared<seeded_stream>(position.seed);
    stream->go_to(position);
    return source_over(stream);
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
