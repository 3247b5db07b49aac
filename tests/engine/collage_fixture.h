#pragma once

#include "session/windows.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <functional>
#include <string>
#include <vector>

/// Colours that survive being saved as JPEG well enough to be told apart.
inline constexpr rgb_triple red{.red = 220, .green = 30, .blue = 30};
inline constexpr rgb_triple green{.red = 30, .green = 200, .blue = 40};
inline constexpr rgb_triple blue{.red = 30, .green = 40, .blue = 220};
inline constexpr rgb_triple yellow{.red = 230, .green = 220, .blue = 40};
inline constexpr rgb_triple grey{.red = 128, .green = 128, .blue = 128};

/// A session that is ready for a run: its folders, a design of the user's own in "Place" style without
/// locations, no photos, no frames and shadows, a grey background. Photos and templates are the test's to
/// add.
struct collage_fixture {
    collage_fixture();

    temporary_folder home;
    scripted_desktop desk;
    windows all;
    frmMain & main;

    /// The lines of the design's template file.
    void use_template(const std::vector<std::string> & lines);
    /// A plain JPEG of that name below the home folder; gives its path.
    std::string picture(const std::string & name, rgb_triple color, int width, int height) const;
    /// Adds a plain photo to the table.
    void add_photo(rgb_triple color, int width = 40, int height = 60);
    /// Adds a path to the table, whatever it leads to.
    void add_path(const std::string & path);
    /// Swaps every photo of the table for its thumbnail.
    void use_thumbnails();

    /// Locations and a plain grey canvas for a loop that is run alone, without bleed.
    void use_canvas(int width, int height);
    void add_location(const location & place);

    /// A full run whose picture is looked at while the image window is open.
    bitmap full_run();
    /// `tmp/finished.jpg`.
    bitmap finished() const;
};

/// The lines of a template of four upright quarters of the poster, without frames and shadows.
std::vector<std::string> quarters();

/// The quarters with a photo for each: red and green above, blue and yellow below.
struct four_photos : collage_fixture {
    four_photos();
};

/// Looks at a run that has got ready, and cancels it there.
void look_at_start(collage_fixture & run, const std::function<void()> & look);

/// Checks that no run is going on and that the window is open.
void expect_usable(const frmMain & main);

/// The letter of a colour: r, g, b, y, "." for grey, "k" for black, "w" for white, "?" for any other.
char letter_of(rgb_triple color);

/// The letters at every `step`-th pixel from `start` on, one line a row from the top.
std::string sampled(const bitmap & image, int start, int step);

/// The letter of the pixel at (x, y) from the top.
char letter_at(const bitmap & image, int x, int y);
