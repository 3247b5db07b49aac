#pragma once

#include "support/list_controls.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Settings that a design or a style has forced on the user's controls. Each is noted with what stood there,
/// and goes back to it unless the user has chosen something else since.
class forced_settings {
public:
    void set_text(combo_box & list, const std::string & text);
    void set_text(text_box & box, const std::string & text);
    void tick(check_box & box, bool ticked);
    /// Notes a box that is going to be so, as long as its own handler or another one's has not changed it
    /// yet.
    void note(check_box & box, bool ticked);
    /// Selects one of a set.
    void select(option_set & options, option_button & wanted);
    void set_back_color(picture & swatch, std::uint32_t color);

    /// Puts everything back, the last first. Handlers fire as for any change by code.
    void release();

private:
    std::vector<std::function<void()>> ways_back;
};
