#include "desktop/looks/start_page.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr int count = 5;

start_sizes sizes()
{
    return {.picture = {40, 145, 708, 470},
            .art = 384,
            .center = 480,
            .way = {128, 84},
            .least = {110, 56},
            .count = count};
}

bool lie_apart(const std::vector<QRect> & places)
{
    for (std::size_t i = 0; i < places.size(); ++i)
        for (std::size_t j = i + 1; j < places.size(); ++j)
            if (places[i].intersects(places[j]))
                return false;
    return true;
}

bool lie_in(QSize room, const start_places & places)
{
    const QRect whole(QPoint(0, 0), room);
    return whole.contains(places.picture) &&
           std::ranges::all_of(places.ways, [&](const QRect & each) { return whole.contains(each); });
}

// Rows and columns of the art itself, on which no way may lie; the scale is known to a pixel of the picture.
QRect art_of(const start_places & places)
{
    const double scale = double(places.picture.width()) / sizes().picture.width();
    const int half = qRound((sizes().picture.width() - sizes().center) * scale);
    const int middle = places.picture.x() + qRound(sizes().center * scale);
    return {middle - half, places.picture.y(), 2 * half, static_cast<int>(sizes().art * scale)};
}

}  // namespace

TEST(start_page, stands_where_its_form_puts_it_in_a_window_that_has_room)
{
    const start_places places = placed_start(sizes(), {1040, 645});
    EXPECT_EQ(places.picture, QRect(40, 145, 708, 470));
    ASSERT_EQ(places.ways.size(), std::size_t{count});
    EXPECT_EQ(places.ways.front(), QRect(184, 529, 128, 84));
    EXPECT_EQ(places.ways.back(), QRect(728, 529, 128, 84));
}

TEST(start_page, comes_up_before_it_shrinks_and_keeps_its_art_in_the_middle)
{
    const start_places places = placed_start(sizes(), {1040, 600});
    EXPECT_EQ(places.picture.size(), QSize(708, 470));
    EXPECT_EQ(places.picture.x() + sizes().center, 1040 / 2);
    const start_places small = placed_start(sizes(), {900, 400});
    EXPECT_EQ(art_of(small).center().x(), 900 / 2 - 1);
    EXPECT_LT(small.picture.height(), 470);
    EXPECT_EQ(small.ways.front().size(), QSize(128, 84));
}

TEST(start_page, fits_into_each_room_that_is_no_smaller_than_the_least)
{
    const QSize least = least_start(sizes());
    for (int width = least.width(); width <= 1400; width += 7)
        for (int height = least.height(); height <= 800; height += 5) {
            const start_places places = placed_start(sizes(), {width, height});
            ASSERT_TRUE(lie_in({width, height}, places)) << width << " by " << height;
            std::vector<QRect> all = places.ways;
            all.push_back(art_of(places));
            ASSERT_EQ(all.size(), std::size_t{count + 1});
            ASSERT_TRUE(lie_apart(all)) << width << " by " << height;
            for (const QRect & each : places.ways)
                ASSERT_TRUE(each.width() >= sizes().least.width() && each.height() >= sizes().least.height());
        }
}
