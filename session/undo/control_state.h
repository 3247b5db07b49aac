#pragma once

#include "support/forms.h"

#include <cstdint>
#include <string>

/// All that a control holds, apart from the entries of a list and the file of a picture.
struct control_state {
    std::string caption, tool_tip, tag, value;
    box place;
    std::uint32_t back_color = 0, fore_color = 0;
    bool visible = true, enabled = true;
    font_style font{};  ///< of a text box
    bool operator==(const control_state &) const = default;
};

control_state state_of(const control & held);

/// Gives the control that state. None of its handlers fires; whoever shows it is told. A plain list and a
/// scale keep what they hold.
void take_state(control & held, const control_state & state);
