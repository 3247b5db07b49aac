#pragma once

#include "recipes/recipe_shelf.h"
#include "tests/quick/quick_session.h"

#include <functional>
#include <string>

/// A session whose chance can be repeated, with photos that can be told apart by their colours.
struct flurn_session : quick_session {
    flurn_session();

    /// The whole way into the finishing stage with so many of them, half of them upright.
    void begin(int count = 4);
    /// Paints them anew, each in its own colour.
    void paint() const;
    /// Makes the flurn at full size and gives the bytes of the picture.
    std::string make();
    std::string preview() const;
    /// The recipe that was kept last.
    std::string kept() const;
};

/// The program started once more over the same folders.
struct started_again {
    explicit started_again(const opened_session & before);

    /// Chooses that recipe in "Recent flurns".
    void open(const std::string & file);
    std::string make();
    std::string preview() const;

    scripted_desktop desk;
    windows all;
    frmMain & main;
};

/// What is told once the photos of a flurn are not all as they were then: the news, and what was done.
std::string laid_out_anew(const std::string & news);

/// Clicks "Flurn" and gives the bytes of the picture that the image window shows; `while_shown` plays its
/// user.
std::string made_in(frmMain & main, scripted_desktop & desk,
                    const std::function<void(frmImage &)> & while_shown = {});
