#pragma once

/// Where the photo stands on a caption card, in pixels; `margin` is its distance from the card's left and
/// top.
struct card_layout {
    int margin = 0;
    int width = 0, height = 0;
    bool operator==(const card_layout &) const = default;
};

/// The room for writing is below the photo, on a card that is wider than high at its right.
card_layout laid_out_card(int width, int height);
