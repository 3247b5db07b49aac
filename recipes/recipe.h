#pragma once

#include "session/undo/control_state.h"
#include "support/random.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What it takes to make a flurn once more: the finishing stage as it was when its full-size run began, as
/// plain values. Paths are absolute here, whatever the file has.

/// Ends the name of a recipe's file.
inline constexpr const char * recipe_ending = ".flurn";

/// The photo that a copy was prepared from.
struct recipe_original {
    std::string path;
    std::uint64_t bytes = 0;  ///< these three as for the photo itself
    std::int64_t changed = 0;
    bool moves_along = false;
    bool operator==(const recipe_original &) const = default;
};

struct recipe_photo {
    std::string path;
    std::uint64_t bytes = 0;   ///< of its file when the flurn was made
    std::int64_t changed = 0;  ///< when it was last changed before, in nanoseconds since 1970
    bool moves_along =
        false;  ///< it was told from the recipe's folder: copying both may have changed its time
    std::optional<recipe_original> original{};  ///< of a copy, which may be cleared; else nothing
    bool operator==(const recipe_photo &) const = default;
};

/// The file that its user knows: what a copy was prepared from, else the photo.
const std::string & own_path(const recipe_photo & photo);

/// Something that the window holds beside its controls, under its name.
struct recipe_setting {
    std::string name, value;
    bool operator==(const recipe_setting &) const = default;
};

struct recipe_control {
    std::string name;
    control_state state;
    bool operator==(const recipe_control &) const = default;
};

/// One setting that the design or the style had forced, with what goes back when the next collage begins.
struct recipe_force {
    enum class source : std::uint8_t { design, style };
    source by = source::design;
    int kind = 0;  ///< of `forced_setting::how`
    std::string control, before, forced, option_before;
    bool operator==(const recipe_force &) const = default;
};

/// A template that the run reads, by the name of its work file.
struct recipe_template {
    std::string name, text;
    bool operator==(const recipe_template &) const = default;
};

struct recipe {
    std::string program{};               ///< the version that made it
    std::string made{};                  ///< "2026-11-22 15:30:11", local time
    std::string design{};                ///< its name as the user knows it
    std::vector<recipe_photo> photos{};  ///< in the order in which they were used
    std::vector<recipe_setting> settings{};
    std::vector<recipe_control> controls{};
    std::vector<recipe_force> forces{};
    std::vector<recipe_template> templates{};
    std::optional<chance_position> chance{};  ///< where it stood when the run began
    bool pictures_preview = false;  ///< the picture that is kept with it is the preview that was on show
    bool operator==(const recipe &) const = default;
};

/// The value of that setting, nullptr when the recipe doesn't have it.
const std::string * setting_in(const recipe & held, std::string_view name);
const recipe_control * control_in(const recipe & held, std::string_view name);
const recipe_template * template_in(const recipe & held, std::string_view name);
