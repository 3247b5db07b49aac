#include "designs/templates/location_line.h"
#include "tests/pictures.h"
#include "tests/quick/quick_session.h"

#include <algorithm>
#include <set>

// What a preview has left to chance is on the poster as it was approved.

namespace {

using lines = std::vector<std::string>;

// As many photos as a grid of three by four takes, each of a colour of its own.
struct approving : quick_session {
    explicit approving(std::uint64_t seed)
    {
        main.random = seeded_random(seed);
        desk.keeps_messages = true;  // the first style has no place for so many upright photos
        make_photos(12, 0);
        for (std::size_t i = 0; i < photos.size(); ++i)
            save_jpeg(plain(15, 20, color_of(static_cast<int>(i))), photos[i]);
        start();
    }
    static rgb_triple color_of(int photo)
    {
        const auto part = [](int step) { return static_cast<std::uint8_t>(step * 60 + 30); };
        return {.red = part(photo % 4), .green = part(photo / 4), .blue = part((photo * 7) % 4)};
    }
    lines preview(const std::function<void()> & change)
    {
        EXPECT_TRUE(draws_anew(*this, change));
        shown = load_picture(picture_format::jpeg, finished_path(main));
        return written();
    }
    lines again()
    {
        return preview([&] { main.optTiny.selected() ? main.optNone.select() : main.optTiny.select(); });
    }
    lines full()
    {
        desk.on_modal<frmImage>(
            [&](frmImage &) { poster = load_picture(picture_format::jpeg, finished_path(main)); });
        main.cmdFlurn.click();
        return written();
    }
    bitmap shown, poster;
};

bool are_alike(rgb_triple one, rgb_triple other)
{
    const auto near = [](int left, int right) { return std::abs(left - right) < 25; };
    return near(one.red, other.red) && near(one.green, other.green) && near(one.blue, other.blue);
}

// At most of nine spots of the place; at the others a neighbour lies over it, or a frame.
bool shows_the_same(const approving & session, const location & place)
{
    int alike = 0;
    for (int spot = 0; spot < 9; ++spot) {
        const int x = place.left + place.width * (1 + spot % 3) / 4,
                  y = place.top + place.height * (1 + spot / 3) / 4;
        // The preview lays places out at a seventh and 8 pixels further in.
        alike += are_alike(seen(session.poster, x, y), seen(session.shown, x / 7 + 8, y / 7 + 8));
    }
    return alike >= 6;
}

int places_that_differ(const approving & session, const lines & places)
{
    return static_cast<int>(std::ranges::count_if(places, [&](const std::string & line) {
        return !shows_the_same(session, parse_location(line).value());
    }));
}

using style = option_button frmMain::*;
constexpr style styles_with_holes[] = {&frmMain::optBlock, &frmMain::optScatter, &frmMain::optMatrix};

}  // namespace

TEST(approved_poster, has_its_holes_where_the_preview_on_show_has_them)
{
    for (const style each : styles_with_holes) {
        std::set<lines> previews;
        for (std::uint64_t seed = 1; seed <= 4; ++seed) {
            approving session(seed);
            (session.main.*each).select();
            session.preview([&] { session.main.cmbBlanks.set_text("3"); });
            const lines shown = session.again();
            previews.insert(shown);
            EXPECT_EQ(session.full(), shown);
            if (seed == 1) {
                EXPECT_EQ(session.full(), shown) << "a second time";
            }
        }
        EXPECT_GT(previews.size(), 1U);
    }
}

TEST(approved_poster, has_new_holes_with_every_new_preview)
{
    approving session(3);
    session.main.optMatrix.select();
    std::set<lines> seen_holes{session.preview([&] { session.main.cmbBlanks.set_text("4"); })};
    for (int i = 0; i < 5; ++i)
        seen_holes.insert(session.again());
    EXPECT_GT(seen_holes.size(), 2U);
}

TEST(approved_poster, is_of_the_preview_on_show_after_another_was_cancelled)
{
    approving session(3);
    frmMain & main = session.main;
    main.optMatrix.select();
    main.chkShuffle.tick(true);
    const lines shown = session.preview([&] { main.cmbBlanks.set_text("4"); });
    const int16 step = main.mix_step;
    for (int i = 0; i < 4; ++i) {
        session.desk.on_pump(1, [&] { main.run.cancel_requested = true; });
        i % 2 == 0 ? main.optTiny.select() : main.optNone.select();
        EXPECT_EQ(std::ranges::count(session.desk.messages, "Flurning has been canceled."), 1);
        session.desk.messages.clear();
        EXPECT_EQ(main.mix_step, step);
    }
    EXPECT_EQ(session.full(), shown);
}

TEST(approved_poster, shows_the_photos_in_the_places_where_the_preview_shuffled_them)
{
    std::set<int> steps;
    for (std::uint64_t seed = 1; seed <= 6; ++seed) {
        approving session(seed);
        session.main.optMatrix.select();
        session.main.cmbBlanks.set_text("5");
        const lines places = session.preview([&] { session.main.chkShuffle.tick(true); });
        steps.insert(session.main.mix_step);
        EXPECT_EQ(session.full(), places);
        EXPECT_EQ(places_that_differ(session, places), 0);
    }
    EXPECT_GT(steps.size(), 1U);
}

TEST(approved_poster, mixes_its_shapes_as_the_preview_did)
{
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
        approving session(seed);
        frmMain & main = session.main;
        main.optMatrix.select();
        main.chkShuffle.tick(true);  // goes on to count where it isn't seen any more
        main.optShapes.select();
        const lines places = session.preview([&] { main.chkMix.tick(true); });
        const int16 step = main.mix_step;
        EXPECT_EQ(session.full(), places);
        EXPECT_EQ(main.mix_step, step);
        EXPECT_EQ(places_that_differ(session, places), 0);
    }
}

TEST(approved_poster, of_a_preview_that_was_never_made_has_holes_as_well)
{
    approving session(3);
    session.main.optMatrix.select();
    session.main.optSample.select();
    session.main.cmbBlanks.set_text("4");
    const std::size_t places = session.full().size();
    EXPECT_GT(places, 6U);
    EXPECT_LT(places, 12U);
}
