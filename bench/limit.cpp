// Times what no program can do without: to decode every photo, on all cores, and to encode a poster of 2000
// by 3000 once; beside it what the photos cost when they are scaled while they are read, and, where it is
// given, a whole run of a program.
//
//     limit_bench PHOTOS [COUNT [RUNS [PROGRAM WORD...]]]
//
// Makes COUNT photos of 12 megapixels (40 without a number) in the folder PHOTOS where they aren't there.
// Everything is run in turn, RUNS times; prints the least and the median of each and the medians' ratios to
// decoding and encoding.

#include "bench/big_photos.h"
#include "engine/photo/scaled_jpeg.h"
#include "support/platform_error.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int poster_width = 2000, poster_height = 3000;
constexpr picture_size place{.width = 450, .height = 338};

using paths = std::vector<std::string>;

double seconds_of(const std::function<void()> & work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Each photo once, as many at a time as there are cores.
void on_all_cores(const paths & photos, const std::function<void(const std::string &, photo_memory &)> & step)
{
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> workers;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
        workers.emplace_back([&] {
            photo_memory memory;
            for (std::size_t at = next++; at < photos.size(); at = next++)
                step(photos[at], memory);
        });
}

void stop_at(const std::string & what)
{
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

void decode(const std::string & path, photo_memory & memory)
{
    jpeg_rows photo(path, memory.reading);
    while (!photo.next().empty())
        continue;
    if (!photo.is_sound())
        stop_at(path + " can't be decoded");
}

void fit(const std::string & path, photo_memory & memory)
{
    if (!read_fitted_jpeg(path, place, memory))
        stop_at(path + " can't be fitted");
}

/// A program's words up to a null, as the system takes them.
void run(const std::vector<char *> & words)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::execvp(words.front(), words.data());
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    if (status != 0)
        stop_at(std::string(words.front()) + " has failed");
}

struct measure {
    const char * name;
    std::function<void()> work;
    std::vector<double> seconds{};
};

double median(std::vector<double> seconds)
{
    std::ranges::sort(seconds);
    return seconds[seconds.size() / 2];
}

void print(const std::vector<measure> & measures)
{
    const double bare = median(measures[0].seconds) + median(measures[1].seconds);
    for (const measure & each : measures) {
        const double middle = median(each.seconds);
        std::printf("%-8s %9.1f ms least %9.1f ms median %7.3f of decoding and encoding\n", each.name,
                    std::ranges::min(each.seconds) * 1000, middle * 1000, middle / bare);
    }
}

int number_of(int count, char ** words, int at, int otherwise)
{
    return count > at ? std::max(1, std::atoi(words[at])) : otherwise;
}

}  // namespace

int main(int count, char ** words)
{
    if (count < 2) {
        std::fprintf(stderr, "limit_bench PHOTOS [COUNT [RUNS [PROGRAM WORD...]]]\n");
        return 2;
    }
    try {
        const paths photos = big_photos(words[1], number_of(count, words, 2, 40));
        const bitmap poster =
            rescaled(load_picture(picture_format::jpeg, photos.front()), poster_width, poster_height);
        std::vector<measure> measures{{"decode", [&] { on_all_cores(photos, decode); }},
                                      {"encode", [&] { jpeg_bytes(poster); }},
                                      {"fit", [&] { on_all_cores(photos, fit); }}};
        std::vector<char *> program(words + std::min(count, 4), words + count);
        program.push_back(nullptr);
        if (program.size() > 1)
            measures.push_back({"program", [&] { run(program); }});
        for (int i = 0; i < number_of(count, words, 3, 5); ++i)
            for (measure & each : measures)
                each.seconds.push_back(seconds_of(each.work));
        print(measures);
    } catch (const platform_error & error) {
        std::fprintf(stderr, "%s\n", told(error).c_str());
        return 1;
    }
}
