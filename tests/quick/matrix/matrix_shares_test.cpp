// How many of the photos the supplied grids show, for every count of them and many mixes.

#include "quick/matrix/matrix_grid.h"
#include "quick/matrix/matrix_plan.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

// "p:" or "l:" for each photo, mixed in the same way each time.
std::string shapes_of(int portrait, int landscape)
{
    std::string signs = std::string(static_cast<std::size_t>(portrait), 'p') +
                        std::string(static_cast<std::size_t>(landscape), 'l');
    std::mt19937 chance(11);  // std::shuffle mixes in another way in another library
    for (std::size_t left = signs.size(); left > 1; --left)
        std::swap(signs[left - 1], signs[chance() % left]);
    std::string shapes;
    for (const char sign : signs)
        shapes += {sign, ':'};
    return shapes;
}

// The lines of the table from the search of that poster on.
std::vector<matrix_grid> grids_for(poster_shape poster)
{
    std::vector<matrix_grid> grids;
    bool begun = poster != poster_shape::square;
    for (line_source lines(std::string(SEED_FOLDER) + "/quick_matrix.ini"); !lines.at_end();) {
        const std::string line = lines.read_line();
        begun = begun || line.starts_with("#SQUARE");
        if (begun && !line.starts_with('#'))
            grids.push_back(matrix_grid_of(line));
    }
    return grids;
}

const matrix_grid & grid_for(const std::vector<matrix_grid> & grids, int wanted)
{
    const auto found =
        std::ranges::find_if(grids, [&](const matrix_grid & each) { return each.cells >= wanted; });
    return found == grids.end() ? grids.back() : *found;
}

// As the generator does it, where an odd row has no portrait to end with as well.
int shown_of(const std::vector<matrix_grid> & grids, poster_shape poster, int portrait, int landscape)
{
    matrix_request request{.grid = grid_for(grids, 2 * landscape + portrait),
                           .poster = poster,
                           .portrait = portrait,
                           .landscape = landscape,
                           .shapes = shapes_of(portrait, landscape)};
    if (request.grid.columns % 2 == 1 && portrait == 0)
        request.grid = grid_for(grids, 2 * (landscape - request.grid.rows));
    return photos_shown(request);
}

// From portraits alone to landscapes alone, in eighths.
struct mix {
    int portrait = 0, landscape = 0;
    int photos() const { return portrait + landscape; }
};

std::vector<mix> all_mixes()
{
    std::vector<mix> mixes;
    for (int photos = 3; photos < 500; ++photos)
        for (int eighths = 0; eighths <= 8; ++eighths)
            mixes.push_back({.portrait = photos - photos * eighths / 8, .landscape = photos * eighths / 8});
    return mixes;
}

}  // namespace

TEST(matrix_shares, upright_and_square_posters_show_every_photo_but_one_at_most)
{
    for (const poster_shape poster : {poster_shape::portrait, poster_shape::square}) {
        const std::vector<matrix_grid> grids = grids_for(poster);
        int whole = 0;
        const std::vector<mix> mixes = all_mixes();
        for (const mix & each : mixes) {
            const int shown = shown_of(grids, poster, each.portrait, each.landscape);
            ASSERT_GE(shown, each.photos() - 1)
                << each.portrait << " portraits, " << each.landscape << " landscapes";
            ASSERT_TRUE(shown == each.photos() || (each.portrait > 0 && each.landscape > 0));
            whole += shown == each.photos() ? 1 : 0;
        }
        EXPECT_GT(whole, static_cast<int>(mixes.size()) - 10);
    }
}

// There the grid is reckoned as for an upright poster, while it is the portraits that take two cells.
TEST(matrix_shares, landscape_posters_show_every_landscape_and_half_of_the_portraits_at_least)
{
    const std::vector<matrix_grid> grids = grids_for(poster_shape::landscape);
    for (const mix & each : all_mixes()) {
        const int shown = shown_of(grids, poster_shape::landscape, each.portrait, each.landscape);
        ASSERT_GE(shown, each.photos() / 2)
            << each.portrait << " portraits, " << each.landscape << " landscapes";
        ASSERT_TRUE(each.landscape < each.portrait || shown >= each.photos() - 1)
            << each.portrait << " portraits, " << each.landscape << " landscapes";
    }
}
