#include "canvas.h"

#include "noise.h"

canvas::canvas(int width, int height)
    : across(width), down(height), pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
{}

colour canvas::seen(point place) const
{
    const float scale = static_cast<float>(down);
    return at(std::clamp(static_cast<int>(place.x * scale), 0, across - 1),
              std::clamp(static_cast<int>(place.y * scale), 0, down - 1));
}

namespace {

/// A running mean over 2 `reach` + 1 pixels of a line, the ends repeated.
void smooth_line(std::vector<colour> & line, std::vector<colour> & work, int reach)
{
    const int last = static_cast<int>(line.size()) - 1;
    const auto get = [&](int i) { return line[static_cast<std::size_t>(std::clamp(i, 0, last))]; };
    colour sum;
    for (int i = -reach; i <= reach; ++i)
        sum = sum + get(i);
    const float share = 1.0F / static_cast<float>(2 * reach + 1);
    for (int i = 0; i <= last; ++i) {
        work[static_cast<std::size_t>(i)] = sum * share;
        sum = sum + get(i + reach + 1) + get(i - reach) * -1.0F;
    }
    line.swap(work);
}

void smooth_rows(canvas & photo, int reach)
{
    std::vector<colour> line(static_cast<std::size_t>(photo.width())), work(line.size());
    for (int y = 0; y < photo.height(); ++y) {
        std::copy_n(&photo.at(0, y), photo.width(), line.begin());
        for (int pass = 0; pass < 3; ++pass)
            smooth_line(line, work, reach);
        std::copy(line.begin(), line.end(), &photo.at(0, y));
    }
}

void smooth_columns(canvas & photo, int reach)
{
    std::vector<colour> line(static_cast<std::size_t>(photo.height())), work(line.size());
    for (int x = 0; x < photo.width(); ++x) {
        for (int y = 0; y < photo.height(); ++y)
            line[static_cast<std::size_t>(y)] = photo.at(x, y);
        for (int pass = 0; pass < 3; ++pass)
            smooth_line(line, work, reach);
        for (int y = 0; y < photo.height(); ++y)
            photo.at(x, y) = line[static_cast<std::size_t>(y)];
    }
}

/// The light above a bright grey, spread out.
canvas spilled(const canvas & photo)
{
    canvas light = photo;
    for (int y = 0; y < light.height(); ++y) {
        for (int x = 0; x < light.width(); ++x) {
            colour & c = light.at(x, y);
            const float strength = rise(0.8F, 1.2F, std::max({c.r, c.g, c.b}));
            c = c * strength;
        }
    }
    soften(light, 0.018F);
    return light;
}

float curved(float level, float contrast)
{
    level = clamped(level);
    const float steep = level * level * (3 - 2 * level);
    return level + (steep - level) * contrast;
}

}  // namespace

void soften(canvas & photo, float radius)
{
    const int reach = static_cast<int>(std::lround(radius * static_cast<float>(photo.height()) * 0.6F));
    if (reach < 1)
        return;
    smooth_rows(photo, reach);
    smooth_columns(photo, reach);
}

void develop(canvas & photo, const film & roll)
{
    const canvas light = spilled(photo);
    const float half = photo.aspect() / 2;
    const float scale = static_cast<float>(photo.height());
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x) {
            colour c = (photo.at(x, y) + light.at(x, y) * roll.bloom) * roll.tint;
            const float dx = (static_cast<float>(x) / scale - half) / half;
            const float dy = (static_cast<float>(y) / scale - 0.5F) * 2;
            c = c * (1 - 0.75F * roll.vignette * rise(0.5F, 2.1F, dx * dx + dy * dy));
            const float speck = hashed(x, y, roll.seed) + hashed(x / 2, y / 2, roll.seed + 7) - 1;
            const float grain = speck * roll.grain;
            photo.at(x, y) = {curved(c.r, roll.contrast) + grain, curved(c.g, roll.contrast) + grain,
                              curved(c.b, roll.contrast) + grain * 1.2F};
        }
    }
}
