#include "recipes/stage_settings.h"

#include "recipes/read_recipe.h"
#include "recipes/stage_fields.h"
#include "recipes/value_text.h"
#include "support/files/text_file.h"

#include <concepts>

namespace {

constexpr int most_photos = photo_table::capacity, most_turns = 100;
constexpr int longest_text = 20'000;
constexpr std::size_t most_holes = 4000;  // numbers that chance gave for the holes of a template
constexpr double below_one = 1 - 1e-16;

std::string turns_text(const std::vector<order_turn> & turns)
{
    std::string text;
    for (const order_turn & turn : turns)
        text += (text.empty() ? "" : " ") + std::to_string(turn.step) + " " + std::to_string(turn.first);
    return text;
}

std::string holes_text(const std::vector<double> & holes)
{
    std::string text;
    for (const double hole : holes)
        text += (text.empty() ? "" : " ") + real_text(hole);
    return text;
}

struct writer {
    std::vector<recipe_setting> & settings;

    void note(const char * name, std::string value) const
    {
        settings.push_back({.name = name, .value = std::move(value)});
    }
    void operator()(const char * name, bool value) const { note(name, value ? "1" : "0"); }
    void operator()(const char * name, const std::string & value) const { note(name, value); }
    void operator()(const char * name, double value) const { note(name, real_text(value)); }
    void operator()(const char * name, std::uint32_t value) const { note(name, std::to_string(value)); }
    void operator()(const char * name, int16 value, field_range) const { note(name, std::to_string(value)); }
    void operator()(const char * name, const std::vector<order_turn> & value) const
    {
        note(name, turns_text(value));
    }
    void operator()(const char * name, const std::vector<double> & value) const
    {
        note(name, holes_text(value));
    }
    // Nothing has no row, so that it can be told from an empty text.
    void operator()(const char * name, const std::optional<std::string> & value) const
    {
        if (value)
            note(name, *value);
    }
    template <typename Enum>
    requires std::is_enum_v<Enum>
    void operator()(const char * name, Enum value, Enum) const
    {
        note(name, std::to_string(static_cast<int>(value)));
    }
};

enum class taking { checked, taken };

[[noreturn]] void refuse(const char * name)
{
    throw recipe_fault{std::string("Its value of ") + name + " is none that a flurn has."};
}

struct field_reader {
    const recipe & wanted;
    taking how;

    template <typename Value>
    void take(Value & field, Value value) const
    {
        if (how == taking::taken)
            field = std::move(value);
    }

    template <typename Number>
    static Number number_of(const char * name, const std::string & text, Number least, Number most)
    {
        const std::optional<Number> read = whole_number_in(text, least, most);
        if (!read)
            refuse(name);
        return *read;
    }

    static double real_of(const char * name, const std::string & text, double least, double most)
    {
        const std::optional<double> read = real_in(text, least, most);
        if (!read)
            refuse(name);
        return *read;
    }

    void operator()(const char * name, bool & field) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, number_of(name, *text, 0, 1) == 1);
    }

    void operator()(const char * name, std::string & field) const
    {
        const std::string * const text = setting_in(wanted, name);
        if (text == nullptr)
            return;
        if (text->size() > longest_text)
            refuse(name);
        take(field, *text);
    }

    void operator()(const char * name, double & field) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, real_of(name, *text, -most_photos, most_photos));
    }

    void operator()(const char * name, std::vector<double> & field) const
    {
        const std::string * const text = setting_in(wanted, name);
        if (text == nullptr)
            return;
        std::vector<double> numbers;
        if (!text->empty())
            for (const std::string & each : split(*text, ' ', most_holes))
                numbers.push_back(real_of(name, each, 0, below_one));
        take(field, std::move(numbers));
    }

    void operator()(const char * name, std::uint32_t & field) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, number_of<std::uint32_t>(name, *text, 0, 0xFFFFFF));
    }

    void operator()(const char * name, int16 & field, field_range of) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, static_cast<int16>(number_of(name, *text, of.least, of.most)));
    }

    void operator()(const char * name, std::optional<std::string> & field) const
    {
        const std::string * const text = setting_in(wanted, name);
        take(field, text == nullptr ? std::nullopt : std::optional<std::string>(*text));
    }

    void operator()(const char * name, std::vector<order_turn> & field) const
    {
        const std::string * const text = setting_in(wanted, name);
        if (text == nullptr)
            return;
        std::vector<order_turn> turns;
        const std::vector<std::string> numbers =
            text->empty() ? std::vector<std::string>() : split(*text, ' ', 2 * most_turns + 1);
        if (numbers.size() % 2 != 0)
            refuse(name);
        for (std::size_t i = 0; i < numbers.size(); i += 2)
            turns.push_back({.step = number_of(name, numbers[i], 0, most_photos),
                             .first = number_of(name, numbers[i + 1], 0, most_photos)});
        take(field, std::move(turns));
    }

    template <typename Enum>
    requires std::is_enum_v<Enum>
    void operator()(const char * name, Enum & field, Enum last) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, static_cast<Enum>(number_of(name, *text, 0, static_cast<int>(last))));
    }
};

// The design's picture lies below a folder of ours.
void check_pictures(const recipe & wanted)
{
    for (const char * name : {"design.bg_image", "design.file", "design.sample", "quick.shape_file"}) {
        const std::string * const text = setting_in(wanted, name);
        if (text != nullptr && text->find("..") != std::string::npos)
            refuse(name);
    }
}

bool are_shapes(const std::string & text)
{
    bool is_letter = true;
    for (const char sign : text) {
        if (is_letter ? sign != 'p' && sign != 'l' : sign != ':')
            return false;
        is_letter = !is_letter;
    }
    return is_letter;
}

// Who lays out by the photos' shapes looks for one of the two until it finds it.
void check_shapes(const recipe & wanted)
{
    for (const char * name : {"photos.shapes", "quick.photo_shapes"}) {
        const std::string * const text = setting_in(wanted, name);
        if (text != nullptr && !are_shapes(*text))
            refuse(name);
    }
}

}  // namespace

std::vector<recipe_setting> settings_of(frmMain & main)
{
    std::vector<recipe_setting> settings;
    visit_fields(main, writer{settings});
    return settings;
}

void take_settings(frmMain & main, const recipe & wanted)
{
    visit_fields(main, field_reader{.wanted = wanted, .how = taking::taken});
}

void check_settings_of(frmMain & main, const recipe & wanted)
{
    visit_fields(main, field_reader{.wanted = wanted, .how = taking::checked});
    check_pictures(wanted);
    check_shapes(wanted);
}
