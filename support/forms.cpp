#include "support/forms.h"

#include "support/numbers.h"
#include "support/replaced.h"

#include <algorithm>

namespace {

// Ticks and selections from outside are "1" and "0", or the words; anything else is refused.
std::optional<bool> read_switch(std::string_view text)
{
    if (text == "1" || text == "true" || text == "yes" || text == "-1")
        return true;
    if (text == "0" || text == "false" || text == "no")
        return false;
    return std::nullopt;
}

}  // namespace

void fire(const std::function<void()> & handler)
{
    if (handler)
        handler();
}

control::control(form & owner, std::string name, std::string caption)
    : own_name(std::move(name)), shown_caption(std::move(caption))
{
    owner.members.push_back(this);
}

void control::changed() const
{
    fire(on_shown_change);
}

void control::take_focus() const
{
    fire(on_take_focus);
}

void control::show(bool on)
{
    if (replaced(shown, on))
        changed();
}

void control::enable(bool on)
{
    if (replaced(active, on))
        changed();
}

void control::set_caption(std::string text)
{
    if (replaced(shown_caption, std::move(text)))
        changed();
}

void control::set_tool_tip(std::string text)
{
    if (replaced(tip, std::move(text)))
        changed();
}

void control::move(const box & where)
{
    if (replaced(own_place, where))
        changed();
}

void control::move_to(int left, int top)
{
    box where = own_place;
    where.left = left;
    where.top = top;
    move(where);
}

void control::set_back_color(std::uint32_t color)
{
    if (replaced(back, color))
        changed();
}

void control::set_fore_color(std::uint32_t color)
{
    if (replaced(fore, color))
        changed();
}

void button::click()
{
    fire(on_click);
}

bool button::set_as_user(std::string_view)
{
    click();
    return true;
}

void group::click()
{
    fire(on_click);
}

void label::click()
{
    fire(on_click);
}

void menu_entry::click()
{
    fire(on_click);
}

void menu_entry::pop_up() const
{
    fire(on_pop_up);
}

void picture::click()
{
    fire(on_click);
}

void picture::drop(int x, int y)
{
    if (on_drop)
        on_drop(x, y);
}

void picture::press(picture_key pressed)
{
    if (on_key)
        on_key(pressed);
}

void picture::ask_popup()
{
    fire(on_popup);
}

void picture::load(std::string path)
{
    shown_file = std::move(path);
    ++loads;
    changed();
}

bool picture::set_as_user(std::string_view text)
{
    set_back_color(static_cast<std::uint32_t>(leading_number(text)));
    return true;
}

void check_box::tick(bool ticked)
{
    if (!replaced(on, ticked))
        return;
    changed();
    fire(on_change);
}

bool check_box::set_as_user(std::string_view text)
{
    const std::optional<bool> wanted = read_switch(text);
    if (wanted)
        tick(*wanted);
    return wanted.has_value();
}

option_button::option_button(form & owner, std::string name, option_set & options, std::string caption)
    : control(owner, std::move(name), std::move(caption)), set(options)
{
    set.push_back(this);
}

void option_button::select(bool selected)
{
    if (!replaced(on, selected))
        return;
    if (on)
        for (option_button * other : set)
            if (other != this && other->on)
                other->select(false);
    changed();
    if (on)
        fire(on_click);
}

bool option_button::set_as_user(std::string_view text)
{
    const std::optional<bool> wanted = read_switch(text);
    if (wanted && *wanted)
        select();
    return wanted.has_value() && *wanted;  // a user can't deselect an option
}

option_button * selected_of(const option_set & options)
{
    const auto found =
        std::ranges::find_if(options, [](const option_button * option) { return option->selected(); });
    return found == options.end() ? nullptr : *found;
}

void text_box::select_all() const
{
    fire(on_select_all);
}

void text_box::set_text(std::string text)
{
    if (!replaced(shown_text, std::move(text)))
        return;
    changed();
    fire(on_change);
}

void text_box::set_font(const font_style & font)
{
    if (replaced(shown_font, font))
        changed();
}

bool text_box::set_as_user(std::string_view text)
{
    set_text(std::string(text));
    return true;
}

form::form(std::string name) : own_name(std::move(name)) {}

control * form::find(std::string_view name) const
{
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const control * member) { return member->name() == name; });
    return found == members.end() ? nullptr : *found;
}

void form::set_caption(std::string text)
{
    if (replaced(title, std::move(text)))
        fire(on_shown_change);
}

void form::set_back_color(std::uint32_t color)
{
    if (replaced(back, color))
        fire(on_shown_change);
}

void form::show(bool on)
{
    if (replaced(is_visible, on))
        fire(on_shown_change);
}

void form::resize(int width, int height)
{
    if (outer_width == width && outer_height == height)
        return;
    outer_width = width;
    outer_height = height;
    fire(on_shown_change);
    fire(on_resize);
}

void form::load()
{
    if (is_loaded)
        return;
    is_loaded = is_visible = true;
    fire(on_load);
}

void form::unload()
{
    if (replaced(is_loaded, false))
        fire(on_shown_change);
}

void form::request_close()
{
    if (!on_query_unload || on_query_unload())
        unload();
}
