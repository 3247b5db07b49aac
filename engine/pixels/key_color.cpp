#include "engine/pixels/key_color.h"

namespace {

constexpr int dark = 6;       // channels below this are taken for black
constexpr int off_black = 7;  // the blue that keeps a dark colour apart from black

}  // namespace

rgb_triple away_from_key(rgb_triple color)
{
    if (color.red < dark || color.green < dark || color.blue < dark)
        color.blue = off_black;
    return color;
}
