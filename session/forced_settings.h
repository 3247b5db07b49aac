#pragma once

#include "support/list_controls.h"

#include <cstdint>
#include <string>
#include <vector>

/// One setting that was forced: which control, what stood there, and what stands there now. Of options the
/// control is the one that was selected, and what stood there the name of the one that was before, or
/// nothing.
struct forced_setting {
    enum class how : std::uint8_t { text, tick, option, color };
    how kind = how::text;
    control * held = nullptr;
    std::string before{}, forced{};
    option_button * option_before = nullptr;
    bool operator==(const forced_setting &) const = default;
};

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

    /// What was forced, the first first, and the way to bring that from elsewhere. Of a setting whose control
    /// is not of its kind nothing is put back.
    const std::vector<forced_setting> & all() const { return noted; }
    void take(std::vector<forced_setting> others) { noted = std::move(others); }

private:
    std::vector<forced_setting> noted;
};
