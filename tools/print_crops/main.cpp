// Lays parts of a poster that was drawn for print beside the same parts of the poster of full size, enlarged:
//
//     print_crops POSTER LARGER CROPS
//
// Takes the parts in which the two differ most and writes them to CROPS_1.png and so on, pixel for pixel, the
// enlarged one at the left. Prints what the two differ by when the larger one is brought down.

#include "engine/pixels/brought_down.h"
#include "engine/pixels/rectangles.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int side = 400;    // of a part, in pixels of the larger poster
constexpr int gutter = 8;    // between the two
constexpr int wanted = 4;    // parts
constexpr int visible = 24;  // a difference of a channel that a person would see

bitmap loaded(const std::string & path)
{
    bitmap image = load_picture(picture_format::jpeg, path);
    if (!image) {
        std::fprintf(stderr, "%s is no JPEG that can be read\n", path.c_str());
        std::exit(1);
    }
    return image;
}

long difference(std::span<const pixel> one, std::span<const pixel> other)
{
    long sum = 0;
    const std::span<const std::uint8_t> left = channels(one), right = channels(other);
    for (std::size_t i = 0; i < left.size(); ++i)
        sum += std::abs(left[i] - right[i]);
    return sum;
}

// Rows from the top.
std::span<const pixel> part_of_row(const bitmap & image, const rectangle & part, int y)
{
    return image.row(image.height() - 1 - y)
        .subspan(static_cast<std::size_t>(part.left), static_cast<std::size_t>(part.width));
}

long difference(const bitmap & one, const bitmap & other, const rectangle & part)
{
    long sum = 0;
    for (int y = part.top; y < part.bottom(); ++y)
        sum += difference(part_of_row(one, part, y), part_of_row(other, part, y));
    return sum;
}

void tell_difference(const bitmap & poster, const bitmap & larger, int scale)
{
    const rectangle all{.left = 0, .top = 0, .width = larger.width(), .height = larger.height()};
    const bitmap down = brought_down(larger, all, scale);
    long seen = 0, sum = 0, count = 0;
    for (int y = 0; y < poster.height(); ++y) {
        const std::span<const std::uint8_t> left = channels(poster.row(y)), right = channels(down.row(y));
        for (std::size_t i = 0; i < left.size(); ++i) {
            const int by = std::abs(left[i] - right[i]);
            sum += by;
            seen += by >= visible;
        }
        count += static_cast<long>(left.size());
    }
    std::printf("brought down: mean difference %.3f, %.3f%% differ by %d or more\n",
                static_cast<double>(sum) / static_cast<double>(count),
                100.0 * static_cast<double>(seen) / static_cast<double>(count), visible);
}

struct found_part {
    rectangle area;  ///< of the larger poster
    long difference = 0;
};

// The parts that differ most first.
std::vector<found_part> parts_of(const bitmap & enlarged_poster, const bitmap & larger)
{
    std::vector<found_part> parts;
    for (int top = 0; top + side <= larger.height(); top += side)
        for (int left = 0; left + side <= larger.width(); left += side) {
            const rectangle area{.left = left, .top = top, .width = side, .height = side};
            parts.push_back({area, difference(enlarged_poster, larger, area)});
        }
    std::ranges::sort(parts, std::ranges::greater{}, &found_part::difference);
    return parts;
}

bool is_near(const rectangle & one, const rectangle & other)
{
    constexpr int apart = 4 * side;
    return std::abs(one.left - other.left) < apart && std::abs(one.top - other.top) < apart;
}

// Those that differ most, from all over the poster.
std::vector<rectangle> chosen_parts(const std::vector<found_part> & parts)
{
    std::vector<rectangle> chosen;
    for (const found_part & part : parts) {
        const auto is_beside = [&](const rectangle & other) { return is_near(part.area, other); };
        if (static_cast<int>(chosen.size()) < wanted && std::ranges::none_of(chosen, is_beside))
            chosen.push_back(part.area);
    }
    return chosen;
}

bitmap beside(const bitmap & left, const bitmap & right, const rectangle & area)
{
    bitmap both(2 * side + gutter, side);
    fill(both, {.red = 255, .green = 255, .blue = 255});
    paste_rectangle(both, left, area, {.left = 0, .top = 0}, plain_copy);
    paste_rectangle(both, right, area, {.left = side + gutter, .top = 0}, plain_copy);
    return both;
}

}  // namespace

int main(int count, char ** words)
{
    if (count != 4) {
        std::fprintf(stderr, "print_crops POSTER LARGER CROPS\n");
        return 2;
    }
    const bitmap poster = loaded(words[1]), larger = loaded(words[2]);
    const int scale = larger.width() / poster.width();
    if (larger.width() != scale * poster.width() || larger.height() != scale * poster.height()) {
        std::fprintf(stderr, "%s isn't %s at a larger scale\n", words[2], words[1]);
        return 1;
    }
    tell_difference(poster, larger, scale);
    const bitmap enlarged_poster = rescaled(poster, larger.width(), larger.height());
    int number = 0;
    for (const rectangle & part : chosen_parts(parts_of(enlarged_poster, larger))) {
        const std::string path = std::string(words[3]) + "_" + std::to_string(++number) + ".png";
        save_picture(picture_format::png, beside(enlarged_poster, larger, part), path);
        std::printf("%s: at %d, %d\n", path.c_str(), part.left, part.top);
    }
    return 0;
}
