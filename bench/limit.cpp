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
#include "photos/scaled_jpeg.h"
#include "support/cores.h"
#include "support/platform_error.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int poster_width = 2000, poster_height = 3000;
constexpr picture_size place{.width = 450, .height = 338};

using paths = std::vector<std::string>;

struct duration {
    double seconds = 0;
    double work = 0;  ///< seconds of all cores together: a machine that others use too hardly changes them
};

double seconds_of(const timeval & time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Of this process and of those that it has waited for.
double work_so_far()
{
    double seconds = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used{};
        ::getrusage(who, &used);
        seconds += seconds_of(used.ru_utime) + seconds_of(used.ru_stime);
    }
    return seconds;
}

duration duration_of(const std::function<void()> & step)
{
    const auto start = std::chrono::steady_clock::now();
    const double before = work_so_far();
    step();
    return {.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
            .work = work_so_far() - before};
}

/// Each photo once, as many at a time as this process may use cores.
void on_all_cores(const paths & photos, const std::function<void(const std::string &, photo_memory &)> & step)
{
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> workers;
    for (int i = 0; i < usable_cores(); ++i)
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
    std::function<void()> step;
    std::vector<duration> found{};
};

double median(std::vector<duration> found, double duration::*part)
{
    std::ranges::sort(found, {}, part);
    return found[found.size() / 2].*part;
}

void print(const std::vector<measure> & measures)
{
    const auto bare = [&](double duration::*part) {
        return median(measures[0].found, part) + median(measures[1].found, part);
    };
    std::printf("%-8s %9s %9s %9s %9s %9s\n", "", "least", "median", "of limit", "work", "of limit");
    for (const measure & each : measures) {
        const double seconds = median(each.found, &duration::seconds),
                     work = median(each.found, &duration::work);
        const double least = std::ranges::min(each.found, {}, &duration::seconds).seconds;
        std::printf("%-8s %6.0f ms %6.0f ms %9.3f %6.0f ms %9.3f\n", each.name, least * 1000, seconds * 1000,
                    seconds / bare(&duration::seconds), work * 1000, work / bare(&duration::work));
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
                each.found.push_back(duration_of(each.step));
        print(measures);
    } catch (const platform_error & error) {
        std::fprintf(stderr, "%s\n", told(error).c_str());
        return 1;
    }
}
