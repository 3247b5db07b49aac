#include "support/list_controls.h"

#include "support/numbers.h"
#include "support/platform_error.h"
#include "support/replaced.h"

#include <algorithm>

namespace {

void check_entry(const control & list, int index, std::size_t count)
{
    if (index < 0 || static_cast<std::size_t>(index) >= count)
        throw platform_error(error_number::subscript, "The list has no such entry: " + list.name());
}

}  // namespace

void combo_box::set_items(std::vector<std::string> texts)
{
    entries = std::move(texts);
    changed();
}

void combo_box::add_item(std::string text)
{
    entries.push_back(std::move(text));
    changed();
}

int combo_box::list_index() const
{
    const auto found = std::find(entries.begin(), entries.end(), shown_text);
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

void combo_box::set_text(std::string text)
{
    if (!replaced(shown_text, std::move(text)))
        return;
    changed();
    fire(on_typed);
}

void combo_box::choose(int index)
{
    check_entry(*this, index, entries.size());
    if (!replaced(shown_text, entries[static_cast<std::size_t>(index)]))
        return;
    changed();
    fire(on_click);
}

bool combo_box::choose_text(std::string_view text)
{
    const auto found = std::find(entries.begin(), entries.end(), text);
    if (found == entries.end())
        return false;
    choose(static_cast<int>(found - entries.begin()));
    return true;
}

bool combo_box::set_as_user(std::string_view text)
{
    if (!choose_text(text))
        set_text(std::string(text));
    return true;
}

bool entry_box::set_as_user(std::string_view text)
{
    return choose_text(text);
}

void list_box::set_items(std::vector<std::string> texts)
{
    entries = std::move(texts);
    shown_pictures.clear();
    chosen = -1;
    changed();
}

void list_box::set_pictures(std::vector<std::string> paths)
{
    shown_pictures = std::move(paths);
    shown_pictures.resize(entries.size());
    changed();
}

void list_box::add_item(std::string text)
{
    entries.push_back(std::move(text));
    changed();
}

void list_box::remove_item(int index)
{
    check_entry(*this, index, entries.size());
    entries.erase(entries.begin() + index);
    if (index < static_cast<int>(shown_pictures.size()))
        shown_pictures.erase(shown_pictures.begin() + index);
    if (index == chosen)
        chosen = -1;
    else if (index < chosen)
        --chosen;
    changed();
}

std::string list_box::text() const
{
    return chosen < 0 ? std::string() : entries[static_cast<std::size_t>(chosen)];
}

void list_box::select(int index)
{
    if (index != -1)
        check_entry(*this, index, entries.size());
    if (!replaced(chosen, index))
        return;
    changed();
    if (chosen != -1)
        fire(on_click);
}

bool list_box::select_text(std::string_view text)
{
    const auto found = std::find(entries.begin(), entries.end(), text);
    if (found == entries.end())
        return false;
    select(static_cast<int>(found - entries.begin()));
    return true;
}

void list_box::double_click(int index)
{
    check_entry(*this, index, entries.size());
    select(index);
    fire(on_double_click);
}

void slider::set_range(int minimum, int maximum)
{
    const bool other_end = replaced(most, std::max(minimum, maximum));
    if (replaced(least, minimum) || other_end)
        changed();
    set_position(held);
}

void slider::set_position(int wanted)
{
    if (!replaced(held, std::clamp(wanted, least, most)))
        return;
    changed();
    fire(on_change);
}

bool slider::set_as_user(std::string_view text)
{
    set_position(nearest(leading_number(text)));
    return true;
}

void progress_bar::tell(int done, int total)
{
    const int wanted_total = std::max(total, 1), wanted = std::clamp(done, 0, wanted_total);
    if (wanted == reached && wanted_total == all)
        return;
    reached = wanted;
    all = wanted_total;
    changed();
}

std::string progress_bar::value() const
{
    return std::to_string(reached) + " of " + std::to_string(all);
}
