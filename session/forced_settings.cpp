#include "session/forced_settings.h"

#include <algorithm>

namespace {

using how = forced_setting::how;

template <typename TextControl>
bool put_text_back(control & held, const forced_setting & setting)
{
    auto * const known = dynamic_cast<TextControl *>(&held);
    if (known != nullptr && known->text() == setting.forced)
        known->set_text(setting.before);
    return known != nullptr;
}

void put_tick_back(control & held, const forced_setting & setting)
{
    auto * const known = dynamic_cast<check_box *>(&held);
    if (known != nullptr && known->value() == setting.forced)
        known->tick(!known->ticked());
}

void put_option_back(control & held, const forced_setting & setting)
{
    auto * const wanted = dynamic_cast<option_button *>(&held);
    if (wanted == nullptr || !wanted->selected())
        return;
    wanted->select(false);
    if (setting.option_before != nullptr)
        setting.option_before->select();
}

void put_color_back(control & held, const forced_setting & setting)
{
    auto * const swatch = dynamic_cast<picture *>(&held);
    if (swatch != nullptr && swatch->value() == setting.forced)
        swatch->set_as_user(setting.before);
}

void put_back(const forced_setting & setting)
{
    control & held = *setting.held;
    switch (setting.kind) {
        case how::text:
            if (!put_text_back<combo_box>(held, setting))
                put_text_back<text_box>(held, setting);
            break;
        case how::tick:
            put_tick_back(held, setting);
            break;
        case how::option:
            put_option_back(held, setting);
            break;
        case how::color:
            put_color_back(held, setting);
            break;
    }
}

}  // namespace

void forced_settings::set_text(combo_box & list, const std::string & text)
{
    const std::string before = list.text();
    list.set_text(text);
    noted.push_back({.kind = how::text, .held = &list, .before = before, .forced = list.text()});
}

void forced_settings::set_text(text_box & box, const std::string & text)
{
    const std::string before = box.text();
    box.set_text(text);
    noted.push_back({.kind = how::text, .held = &box, .before = before, .forced = box.text()});
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
    noted.push_back({.kind = how::tick, .held = &box, .before = box.value(), .forced = ticked ? "1" : "0"});
}

void forced_settings::select(option_set & options, option_button & wanted)
{
    option_button * const before = selected_of(options);
    if (before == &wanted)
        return;
    wanted.select();
    noted.push_back({.kind = how::option, .held = &wanted, .option_before = before});
}

void forced_settings::set_back_color(picture & swatch, std::uint32_t color)
{
    const std::string before = swatch.value();
    swatch.set_back_color(color);
    noted.push_back({.kind = how::color, .held = &swatch, .before = before, .forced = swatch.value()});
}

void forced_settings::release()
{
    const std::vector<forced_setting> were = std::move(noted);
    noted.clear();
    std::for_each(were.rbegin(), were.rend(), [](const forced_setting & setting) { put_back(setting); });
}
