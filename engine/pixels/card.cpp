#include "engine/pixels/card.h"

#include "support/numbers.h"

namespace {

constexpr double margins_in_short_side = 19;
constexpr double writing_part = 5;  ///< a fifth of an upright card

}  // namespace

rectangle photo_on_card(int width, int height)
{
    if (width > height) {
        const int margin = nearest(height / margins_in_short_side);
        return {.left = margin, .top = margin, .width = width - 6 * margin, .height = height - 2 * margin};
    }
    const int margin = nearest(width / margins_in_short_side);
    return {.left = margin,
            .top = margin,
            .width = width - 2 * margin,
            .height = nearest(height - (height / writing_part + 2 * margin))};
}

bitmap captioned_card(picture_size size, const bitmap & photo, rgb_triple color, int scale)
{
    bitmap card(size.width * scale, size.height * scale);
    fill(card, color);
    const rectangle place = photo_on_card(size.width, size.height);
    paste(card, photo, place.left * scale, place.top * scale, plain_copy);
    return card;
}
