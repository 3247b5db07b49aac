#include "session/forced_settings.h"

#include <algorithm>

namespace {

template <typename TextControl>
std::function<void()> text_put_back(TextControl & held, const std::string & before)
{
    return [&held, before, forced = held.text()] {
        if (held.text() == forced)
            held.set_text(before);
    };
}

}  // namespace

void forced_settings::set_text(combo_box & list, const std::string & text)
{
    const std::string before = list.text();
    list.set_text(text);
    ways_back.push_back(text_put_back(list, before));
}

void forced_settings::set_text(text_box & box, const std::string & text)
{
    const std::string before = box.text();
    box.set_text(text);
    ways_back.push_back(text_put_back(box, before));
}

void forced_settings::tick(check_box & box, bool ticked)
{
    note(box, ticked);
    box.tick(ticked);
}

void forced_settings::note(check_box & box, bool ticked)
{
    if (box.ticked() == ticked)
        return;
    ways_back.push_back([&box, ticked] {
        if (box.ticked() == ticked)
            box.tick(!ticked);
    });
}

void forced_settings::select(option_set & options, option_button & wanted)
{
    option_button * const before = selected_of(options);
    if (before == &wanted)
        return;
    wanted.select();
    ways_back.push_back([&wanted, before] {
        if (!wanted.selected())
            return;
        wanted.select(false);
        if (before != nullptr)
            before->select();
    });
}

void forced_settings::set_back_color(picture & swatch, std::uint32_t color)
{
    const std::uint32_t before = swatch.back_color();
    swatch.set_back_color(color);
    ways_back.push_back([&swatch, before, color] {
        if (swatch.back_color() == color)
            swatch.set_back_color(before);
    });
}

void forced_settings::release()
{
    const std::vector<std::function<void()>> noted = std::move(ways_back);
    ways_back.clear();
    std::for_each(noted.rbegin(), noted.rend(), [](const std::function<void()> & put_back) { put_back(); });
}
