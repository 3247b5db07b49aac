// Whatever spacing the list offers, every photo of a quick style shows, in previews too.

#include "engine/layout/location_bends.h"
#include "quick/block/block_match.h"
#include "quick/block/block_plan.h"
#include "quick/shapes/shapes_plan.h"
#include "support/files/text_file.h"
#include "tests/quick/posters.h"
#include "tests/quick/quick_session.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

constexpr int widest = 140;

std::string supplied(const char * name)
{
    return read_file(std::string(SEED_FOLDER) + "/" + name);
}

std::map<std::string, std::vector<std::string>> supplied_blocks()
{
    std::map<std::string, std::vector<std::string>> blocks;
    std::string name;
    for (line_source lines = line_source::of_text(supplied("block_templates")); !lines.at_end();) {
        const std::string line = lines.read_line();
        if (line.starts_with('['))
            name = line;
        else
            blocks[name].push_back(line);
    }
    return blocks;
}

// The counts that 3 to 499 photos come to in blocks, whether none, a part or all of them are portraits.
std::set<std::pair<int, int>> pairs_of_counts(poster_shape poster)
{
    std::set<std::pair<int, int>> pairs;
    for (int photos = 3; photos < 500; photos += sweep_stride)
        for (const int quarters : {0, 1, 2, 3, 4}) {
            const int portrait = photos * quarters / 4;
            const block_counts held = clamped_for_blocks({portrait, photos - portrait}, poster);
            pairs.insert({held.portrait, held.landscape});
        }
    return pairs;
}

bool shows(const location & place)
{
    const location small = scaled_to_preview(place, location_role::place);
    return std::min(place.height, place.width) >= 1 && std::min(small.height, small.width) >= 1;
}

bool is_on_poster(const location & place, poster_shape poster)
{
    const int height = poster == poster_shape::square ? 2000 : 3000;
    return place.top >= 0 && place.left >= 0 && place.top + place.height <= height &&
           place.left + place.width <= 2000;
}

int hidden(const std::vector<location> & places)
{
    return static_cast<int>(
        std::ranges::count_if(places, [](const location & place) { return !shows(place); }));
}

// A shape's height is that of its mask.
location square_of(location place)
{
    place.height = place.width;
    return place;
}

void expect_all_shapes(const shapes_request & request)
{
    const shapes_layout plan = shapes_plan(request, seeded_random(3));
    std::vector<location> places;
    std::ranges::transform(plan.places, std::back_inserter(places), square_of);
    EXPECT_EQ(static_cast<double>(places.size()), plan.rows * plan.columns);
    EXPECT_EQ(hidden(places), 0) << request.last_photo << " photos, gap " << request.gap;
}

}  // namespace

TEST(spacing, hides_no_photo_of_a_block)
{
    const auto blocks = supplied_blocks();
    const std::string table = supplied("quick_block.ini");
    for (const poster_shape poster : posters)
        for (const auto & [portrait, landscape] : pairs_of_counts(poster)) {
            line_source lines = line_source::of_text(table);
            block_match match;
            ASSERT_EQ(find_block(lines, poster, {portrait, landscape}, match), block_search::found);
            for (int gap = -100; gap <= widest; gap += 10) {
                const auto places =
                    block_plan(blocks.at(match.name),
                               {.poster = poster, .gap = gap, .doubled = match.doubled, .split = match.split},
                               listed({}));
                ASSERT_EQ(static_cast<int>(places.size()), portrait + landscape);
                ASSERT_EQ(hidden(places), 0) << match.name << ", gap " << gap;
                ASSERT_TRUE(gap < 0 ||
                            std::ranges::all_of(
                                places, [&](const location & place) { return is_on_poster(place, poster); }))
                    << match.name << ", gap " << gap;
            }
        }
}

TEST(spacing, hides_no_shape)
{
    for (const poster_shape poster : posters)
        for (const char * shape : {"Squares", "Stars"})
            for (int last_photo = 2; last_photo <= 90; ++last_photo)
                for (int gap = -100; gap <= widest; gap += 10)
                    for (const bool mix : {false, true})
                        expect_all_shapes({.poster = poster,
                                           .shape = shape,
                                           .last_photo = last_photo,
                                           .gap = gap,
                                           .frame = 60,
                                           .shadow = 50,
                                           .mix = mix});
}

TEST(spacing, hides_no_shape_of_a_grid_to_which_the_user_added_rows_and_columns)
{
    for (const poster_shape poster : posters)
        for (const int more : {5, 15, 20})
            expect_all_shapes({.poster = poster,
                               .last_photo = 84,
                               .row_bias = static_cast<double>(more),
                               .column_bias = static_cast<double>(more),
                               .gap = widest,
                               .frame = 60,
                               .shadow = 50,
                               .mix = true});
}

TEST(spacing, the_list_is_drawn_from_end_to_end)
{
    quick_session session;
    for (const char * name : {"quick_block.ini", "block_templates"})
        session.folder.write(std::string("install/") + name, supplied(name));
    session.start(20, 11);
    frmMain & main = session.main;
    for (option_button * poster : main.orientation_options) {
        poster->select();
        main.optPreview.select();
        EXPECT_TRUE(draws_anew(session, [&] { main.cmbSpace.choose(0); }));
        EXPECT_TRUE(draws_anew(session, [&] { main.cmbSpace.choose(24); }));
    }
    main.optShapes.select();
    EXPECT_TRUE(draws_anew(session, [&] { main.cmbSpace.choose(0); }));
    EXPECT_TRUE(draws_anew(session, [&] { main.cmbSpace.choose(24); }));
}

TEST(spacing, of_the_end_of_the_list_makes_posters_of_many_photos_too)
{
    quick_session session;
    for (const char * name : {"quick_block.ini", "block_templates"})
        session.folder.write(std::string("install/") + name, supplied(name));
    session.desk.keeps_messages = true;
    session.start(45, 15);
    frmMain & main = session.main;
    int posters_made = 0;
    for (option_button * poster : main.orientation_options)
        for (option_button * style : {&main.optBlock, &main.optShapes}) {
            poster->select();
            style->select();
            main.cmbSpace.choose(0);
            EXPECT_TRUE(draws_anew(session, [&] { main.cmbSpace.choose(24); })) << style->name();
            session.desk.on_modal<frmImage>([&](frmImage &) { ++posters_made; });
            main.cmdFlurn.click();
        }
    EXPECT_EQ(posters_made, 6);
    for (const std::string & each : session.desk.messages)
        EXPECT_EQ(each.find("CAUGHT AN ERROR"), std::string::npos) << each;
}

TEST(spacing, beyond_the_list_is_cut_into_its_range)
{
    quick_session session;
    session.start();
    frmMain & main = session.main;
    const auto cut = [&](const char * typed) {
        main.cmbSpace.set_text(typed);
        return main.cmbSpace.text();
    };
    EXPECT_EQ(cut("99999"), "140");
    EXPECT_EQ(cut("-99999"), "-100");
    EXPECT_EQ(cut("139"), "139");
    EXPECT_EQ(cut("-"), "-");
    cut("1e300");
    EXPECT_TRUE(draws_anew(session, [&] { main.optPreview.select(); }));
    EXPECT_EQ(session.written().front(), "140:140:1520:720:0:-1:-1:0:");
}

TEST(blanks, beyond_the_longest_template_are_cut)
{
    quick_session session;
    session.start();
    session.main.cmbBlanks.set_text("99999");
    EXPECT_TRUE(draws_anew(session, [&] { session.main.cmbSpace.choose(13); }));
}
