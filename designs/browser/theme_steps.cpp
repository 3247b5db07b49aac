#include "designs/browser/theme_steps.h"

#include "designs/browser/theme_listing.h"

namespace {

constexpr int none = -1;

int filled_slot(frmThemes & window, int from, int step)
{
    for (int index = from + step; index >= 0 && index < slot_count; index += step)
        if (!slot_of(window, index).caption().empty())
            return index;
    return none;
}

// Behind the last slot of a page comes the first one of the next page; the last design of all stays.
int next_design_slot(frmThemes & window)
{
    const int next = filled_slot(window, window.selected_index, 1);
    if (next != none)
        return next;
    if (window.cmdPage_plus.enabled())
        window.cmdPage_plus.click();
    return window.selected_index;
}

// Before the first slot of a page comes the last one of the page before; the first design of all stays.
int previous_design_slot(frmThemes & window)
{
    const int previous = filled_slot(window, window.selected_index, -1);
    if (previous != none)
        return previous;
    if (!window.cmdPage_minus.enabled())
        return window.selected_index;
    window.cmdPage_minus.click();
    return filled_slot(window, slot_count, -1);
}

void click_enabled(button & wanted)
{
    if (wanted.enabled())
        wanted.click();
}

// The other column has a design less where the count is odd.
void change_column(frmThemes & window, move_key pressed)
{
    const bool is_right = window.selected_index >= right_column;
    if (window.selected_index == none || is_right == (pressed == move_key::right))
        return;
    int wanted = window.selected_index + (is_right ? -right_column : right_column);
    while (wanted > right_column && slot_of(window, wanted).caption().empty())
        --wanted;
    if (!slot_of(window, wanted).caption().empty())
        slot_of(window, wanted).select();
}

bool is_design(const frmThemes & window, const control * focused)
{
    for (const option_button & slot : window.optDesign)
        if (&slot == focused)
            return true;
    return false;
}

}  // namespace

option_button & slot_of(frmThemes & window, int index)
{
    return window.optDesign[static_cast<std::size_t>(index)];
}

void list_next_page(frmThemes & window, frmMain & main)
{
    GetDesigns(window, main, count_list::kept);
    window.cmdPage_minus.enable(true);
}

void list_page_before(frmThemes & window, frmMain & main)
{
    window.page_start = narrow(start_of_page_before(window.page_start, window.more_pages));
    GetDesigns(window, main, count_list::kept);
}

void select_next_design(frmThemes & window)
{
    if (window.selected_index == none)
        return;
    slot_of(window, window.selected_index).select(false);
    slot_of(window, next_design_slot(window)).select();
    if (filled_slot(window, window.selected_index, 1) == none && !window.cmdPage_plus.enabled())
        window.cmdNext.enable(false);
}

void select_previous_design(frmThemes & window)
{
    if (window.selected_index == none)
        return;
    slot_of(window, window.selected_index).select(false);
    slot_of(window, previous_design_slot(window)).select();
    window.cmdNext.enable(true);
}

bool move_about(frmThemes & window, move_key pressed, const control * focused)
{
    switch (pressed) {
        case move_key::page_down:
            click_enabled(window.cmdPage_plus);
            return true;
        case move_key::page_up:
            click_enabled(window.cmdPage_minus);
            return true;
        default:
            break;
    }
    if (!is_design(window, focused))
        return false;
    if (pressed == move_key::down)
        click_enabled(window.cmdNext);
    else if (pressed == move_key::up)
        click_enabled(window.cmdPrevious);
    else
        change_column(window, pressed);
    return true;
}
