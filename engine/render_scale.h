#pragma once

/// How finely a run draws its layout. The layout itself, which photo goes where and every measure, is
/// reckoned in the pixels of a poster of 2000 by 3000, whatever is drawn of it.
struct render_scale {
    int poster = 1;   ///< pixels of the poster for one of the layout, in each direction
    int samples = 1;  ///< pixels drawn for one of the poster, in each direction

    /// Pixels of the canvas for one of the layout.
    constexpr int canvas() const { return poster * samples; }
    bool operator==(const render_scale &) const = default;
};
