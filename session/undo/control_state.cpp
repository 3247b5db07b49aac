#include "session/undo/control_state.h"

#include "support/for_now.h"
#include "support/list_controls.h"

namespace {

using handler = std::function<void()>;

void take_value(check_box & held, const control_state & state)
{
    const for_now<handler> silent(held.on_change, {});
    held.tick(state.value == "1");
}

void take_value(option_button & held, const control_state & state)
{
    const for_now<handler> silent(held.on_click, {});
    held.select(state.value == "1");
}

void take_value(combo_box & held, const control_state & state)
{
    const for_now<handler> silent(held.on_typed, {});
    held.set_text(state.value);
}

void take_value(text_box & held, const control_state & state)
{
    const for_now<handler> silent(held.on_change, {});
    held.set_text(state.value);
    held.set_font(state.font);
}

template <typename Control>
bool took_as(control & held, const control_state & state)
{
    auto * const known = dynamic_cast<Control *>(&held);
    if (known != nullptr)
        take_value(*known, state);
    return known != nullptr;
}

}  // namespace

control_state state_of(const control & held)
{
    const auto * const box = dynamic_cast<const text_box *>(&held);
    return {.caption = held.caption(),
            .tool_tip = held.tool_tip(),
            .tag = held.tag,
            .value = held.value(),
            .place = held.place(),
            .back_color = held.back_color(),
            .fore_color = held.fore_color(),
            .visible = held.visible(),
            .enabled = held.enabled(),
            .font = box == nullptr ? font_style{} : box->font()};
}

void take_state(control & held, const control_state & state)
{
    held.set_caption(state.caption);
    held.set_tool_tip(state.tool_tip);
    held.tag = state.tag;
    held.move(state.place);
    held.set_back_color(state.back_color);
    held.set_fore_color(state.fore_color);
    took_as<check_box>(held, state) || took_as<option_button>(held, state) ||
        took_as<combo_box>(held, state) || took_as<text_box>(held, state);
    held.enable(state.enabled);
    held.show(state.visible);
}
