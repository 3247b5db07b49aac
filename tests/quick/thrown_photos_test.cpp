// What a user sees of each photo of a quick scatter, whatever their number and however many of them lie
// across: the supplied scatters as the program turns them and draws them within the border that it takes
// then.

#include "engine/layout/border.h"
#include "quick/scatter/scatter_match.h"
#include "quick/scatter/scatter_plan.h"
#include "support/files/text_file.h"
#include "tests/quick/posters.h"
#include "tests/quick/supplied_sections.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <set>

namespace {

constexpr int step = 20;  // pixels from point to point

border_size taken(least_border least)
{
    switch (least) {
        case least_border::small:
            return border_size::small;
        case least_border::medium:
            return border_size::medium;
        case least_border::large:
            return border_size::large;
        case least_border::any:
            break;
    }
    return border_size::none;
}

std::vector<location> places_of(const scatter_layout & layout, bool square)
{
    std::vector<location> places;
    const border_setting setting{
        .size = taken(border_for(layout.reach)), .square = square, .scattered = true};
    for (const std::string & line : layout.lines) {
        const std::vector<std::string> fields = split(line, ':', 9);
        const auto field = [&](std::size_t at) { return static_cast<int16>(std::stoi(fields[at])); };
        const location place{
            .top = field(0), .left = field(1), .height = field(2), .width = field(3), .rotation = field(4)};
        places.push_back(setting.size == border_size::none
                             ? place
                             : bent(place, location_role::place, border_bend(setting, run_size::full)));
    }
    return places;
}

/// The points of the poster, each with the photo that is seen there, and how many points each photo has.
struct seen_poster {
    int width = 2000 / step, height;
    std::vector<int> photo;
    std::vector<bool> middle;  ///< of the photo that is seen
    std::vector<int> inside, inside_middle;

    explicit seen_poster(int pixels)
        : height{pixels / step}, photo(static_cast<std::size_t>(width * height), -1), middle(photo.size())
    {}

    void lay(const location & place)
    {
        const double angle = place.rotation * std::numbers::pi / 180, c = std::cos(angle),
                     s = std::sin(angle);
        inside.push_back(0);
        inside_middle.push_back(0);
        const auto first = [](double from) { return std::max(0, static_cast<int>(from / step)); };
        const double down_left = place.height * s, down_right = place.width * s;
        const int left = first(place.left - std::max(0.0, down_left)),
                  top = first(place.top + std::min(0.0, down_right));
        const double right = place.left + place.width * c - std::min(0.0, down_left);
        const double bottom = place.top + place.height * c + std::max(0.0, down_right);
        for (int y = top; y < std::min(height, first(bottom) + 1); ++y)
            for (int x = left; x < std::min(width, first(right) + 1); ++x) {
                const double from_left = (x + 0.5) * step - place.left,
                             from_top = (y + 0.5) * step - place.top;
                const double across = (from_left * c + from_top * s) / place.width;
                const double down = (from_top * c - from_left * s) / place.height;
                if (across >= 0 && across < 1 && down >= 0 && down < 1)
                    cover(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                              static_cast<std::size_t>(x),
                          std::max(std::abs(across - 0.5), std::abs(down - 0.5)) < 1.0 / 6);
            }
    }

    void cover(std::size_t point, bool in_middle)
    {
        ++inside.back();
        inside_middle.back() += in_middle ? 1 : 0;
        photo[point] = static_cast<int>(inside.size()) - 1;
        middle[point] = in_middle;
    }
};

/// The greatest shares of a photo and of its middle third that others hide, of those parts that lie on the
/// poster.
struct hidden_shares {
    double photo = 0, middle = 0;
};

hidden_shares most_hidden(const std::vector<location> & places, int height)
{
    seen_poster seen(height);
    for (const location & place : places)
        seen.lay(place);
    std::vector<int> shown(places.size()), shown_middle(places.size());
    for (std::size_t point = 0; point < seen.photo.size(); ++point)
        if (seen.photo[point] >= 0) {
            const auto photo = static_cast<std::size_t>(seen.photo[point]);
            ++shown[photo];
            shown_middle[photo] += seen.middle[point] ? 1 : 0;
        }
    hidden_shares most;
    for (std::size_t photo = 0; photo < places.size(); ++photo) {
        most.photo = std::max(most.photo, 1 - 1.0 * shown[photo] / seen.inside[photo]);
        if (seen.inside_middle[photo] > 0)
            most.middle = std::max(most.middle, 1 - 1.0 * shown_middle[photo] / seen.inside_middle[photo]);
    }
    return most;
}

/// Photos that lie along the poster: as many as the scatter has tall cells, and up to all or none of them.
std::set<int> counts_along(const scatter_entry & entry)
{
    std::set<int> counts;
    for (int part = 0; part <= 2; ++part) {
        counts.insert(entry.slots.along + entry.slots.cross * part / 2);
        counts.insert(entry.slots.along * part / 2);
    }
    return counts;
}

}  // namespace

TEST(thrown_photos, hide_no_photo_by_much_and_its_middle_hardly_however_many_lie_across)
{
    const std::string table = text_of_table("quick_scatter.ini");
    const sections scatters = sections_of("scatter_templates");
    for (const poster_shape poster : {poster_shape::portrait, poster_shape::square})
        for (int total = 3; total <= 97; total += sweep_stride) {
            const bool square = poster == poster_shape::square;
            line_source lines = line_source::of_text(table);
            const scatter_match match = find_scatter(lines, poster, {total, 0});
            const scatter_entry entry = scatter_entry_of(match.line);
            for (const int along : counts_along(entry)) {
                const scatter_layout plan =
                    scatter_plan(scatters.at("[" + entry.name + "]"),
                                 {.wanted = {along, total - along}, .offered = entry.slots}, listed({}));
                const hidden_shares most = most_hidden(places_of(plan, square), square ? 2000 : 3000);
                const bool as_drawn = along == entry.slots.along;
                EXPECT_LT(most.photo, as_drawn ? 0.4 : 0.44) << entry.name << " " << along;
                EXPECT_LT(most.middle, as_drawn ? 0.01 : 0.2) << entry.name << " " << along;
            }
        }
}
