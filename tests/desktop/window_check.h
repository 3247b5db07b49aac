#pragma once

#include "support/forms.h"

#include <QWidget>

#include <string>
#include <vector>

/// What a check has found in all windows.
struct window_findings {
    std::vector<std::string> faults;  ///< a line each, behind the name of the window's state
    int seen = 0;                     ///< of what it looks for, faulty or not
};

/// A look at every window of the program. To open them all takes longer than to look at them, so the first
/// one that is asked for opens them for all checks, once in letters of each size. A check only looks: it
/// leaves a window as it is.
class window_check {
public:
    using look = void (*)(form & held, QWidget & window, window_findings & found);
    explicit window_check(look looked_with);
    /// In letters of so many pixels, on the smallest screen that the windows are drawn for.
    const window_findings & in_letters(int pixels) const;

private:
    std::size_t place;  // among all checks
};

/// What the smallest screens have room for.
constexpr int widest_window = 1040, highest_window = 740;
