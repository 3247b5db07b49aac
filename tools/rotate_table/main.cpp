#include "support/files/profile.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tools/rotate_table/table_search.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iostream>

/// Makes `rotate.ini`, or looks into one:
///     rotate_table FILE             makes it
///     rotate_table --check FILE     finds some sections anew and compares
///     rotate_table --measure FILE   tells how far photos come to lie off their places

namespace {

constexpr lying both_ways[] = {lying::landscape, lying::portrait};

std::vector<std::string> section_lines(lying photo, int rotation, const rotation_numbers & numbers)
{
    std::vector<std::string> lines{"[" + section_of(photo, rotation) + "]"};
    for (const rotation_key & key : rotation_keys)
        lines.push_back(std::string(key.name) + "=" + std::to_string(numbers.*key.number));
    lines.emplace_back();
    return lines;
}

rotation_numbers read_section(const profile & table, lying photo, int rotation)
{
    rotation_numbers numbers;
    for (const rotation_key & key : rotation_keys)
        numbers.*key.number = std::stoi(table.value(section_of(photo, rotation), key.name, "0"));
    return numbers;
}

int make(const std::string & path)
{
    std::vector<std::string> lines{
        "; Where tilted photos go, for a photo of 450 by 300 pixels (L) or 300 by 450 (P). Made by "
        "rotate_table.",
        ""};
    for (lying photo : both_ways)
        for (int rotation : table_rotations()) {
            const std::vector<std::string> section =
                section_lines(photo, rotation, searched_numbers(photo, rotation));
            lines.insert(lines.end(), section.begin(), section.end());
        }
    lines.pop_back();
    write_file(path, text_of(lines));
    return 0;
}

int check(const std::string & path)
{
    const profile table(path);
    int wrong = 0;
    for (const auto & [photo, rotation] : {std::pair{lying::landscape, 5}, {lying::portrait, -45}})
        wrong += read_section(table, photo, rotation) == searched_numbers(photo, rotation) ? 0 : 1;
    std::cout << (wrong == 0 ? "The sections looked at are as found.\n"
                             : "A section differs from what is found.\n");
    return wrong == 0 ? 0 : 1;
}

double length(const picture_point & error)
{
    return std::hypot(error.x, error.y);
}

struct spread {
    double middle = 0, largest = 0;
};

spread spread_of(std::vector<double> lengths)
{
    std::ranges::sort(lengths);
    return {.middle = lengths[lengths.size() / 2], .largest = lengths.back()};
}

/// Lengths of the errors in one kind of run.
struct measured_errors {
    std::vector<double> full, preview, ground;
};

void measure_section(const rotation_numbers & numbers, lying photo, int rotation, measured_errors & all)
{
    measured_errors here;
    for (const scaling & used : usual_scalings()) {
        (used.divisor == 1 ? here.full : here.preview)
            .push_back(length(corner_error(numbers, rotation, used)));
        here.ground.push_back(length(ground_error(numbers, rotation, used)));
    }
    const spread full = spread_of(here.full), preview = spread_of(here.preview),
                 ground = spread_of(here.ground);
    std::printf("%-5s full %.2f to %.2f   preview %.2f to %.2f   ground %.2f to %.2f   %s\n",
                section_of(photo, rotation).c_str(), full.middle, full.largest, preview.middle,
                preview.largest, ground.middle, ground.largest,
                holds_all(numbers, photo, rotation) ? "holds all" : "TOO SMALL");
    all.full.insert(all.full.end(), here.full.begin(), here.full.end());
    all.preview.insert(all.preview.end(), here.preview.begin(), here.preview.end());
}

int measure(const std::string & path)
{
    const profile table(path);
    measured_errors all;
    std::cout << "Errors in pixels, median to largest: of the photo's corner, and of the background that "
                 "comes back.\n";
    for (lying photo : both_ways)
        for (int rotation : table_rotations())
            measure_section(read_section(table, photo, rotation), photo, rotation, all);
    const spread full = spread_of(all.full), preview = spread_of(all.preview);
    std::printf("all   full %.2f to %.2f   preview %.2f to %.2f\n", full.middle, full.largest, preview.middle,
                preview.largest);
    return 0;
}

}  // namespace

int main(int count, char ** words)
{
    const std::vector<std::string> given(words + 1, words + count);
    try {
        if (given.size() == 1)
            return make(given[0]);
        if (given.size() == 2 && given[0] == "--check")
            return check(given[1]);
        if (given.size() == 2 && given[0] == "--measure")
            return measure(given[1]);
    } catch (const platform_error & error) {
        std::cerr << told(error) << '\n';
        return 1;
    }
    std::cerr << "rotate_table [--check | --measure] FILE\n";
    return 2;
}
