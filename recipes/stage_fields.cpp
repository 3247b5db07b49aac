#include "recipes/stage_fields.h"

#include "recipes/recipe_text.h"
#include "session/undo/moment.h"
#include "support/real_text.h"

#include <array>
#include <charconv>
#include <concepts>
#include <limits>

namespace {

// A new field there needs a name here.
static_assert(std::tuple_size_v<held_values> == 29);

constexpr int most_photos = photo_table::capacity, most_turns = 100;
constexpr int longest_text = 20'000;
constexpr std::size_t most_holes = 4000;  // numbers that chance gave for the holes of a template
constexpr double below_one = 1 - 1e-16;

struct range {
    int least, most;
};
constexpr range any_count{0, most_photos};

// ---- the fields, by name. A range is what the program itself puts there: what walks by such a number trusts
// it.

template <typename Visit>
void visit_collage(collage & of, const Visit & visit)
{
    visit("collage.kind", of.kind, collage_kind::puzzle);
    visit("collage.quick_active", of.quick_active);
    visit("collage.random_design", of.random_design);
    visit("collage.design_rotated", of.design_rotated);
    visit("collage.design_flipped", of.design_flipped);
    visit("collage.design_mirrored", of.design_mirrored);
    visit("collage.stretch_design", of.stretch_design);
    visit("collage.design_matches", of.design_matches);
    visit("collage.landscape_turn", of.landscape_turn, range{-100, 100});
    visit("collage.bg_from_design", of.bg_from_design);
    visit("collage.turns_shown", of.turns_shown);
    visit("collage.locations_shown", of.locations_shown, range{0, location_table::capacity});
    visit("collage.holes_shown", of.holes_shown);
    visit("collage.borders_free", of.borders_free);
    visit("collage.matrix_both", of.matrix_both);
    visit("collage.matrix_rotate", of.matrix_rotate);
    visit("collage.matrix_resize", of.matrix_resize);
    visit("collage.matrix_session", of.matrix_session);
    visit("collage.frames_design", of.frames_design);
    visit("collage.frames_inside", of.frames_inside);
    visit("collage.frame_set_name", of.frame_set_name);
}

template <typename Visit>
void visit_record(design_record & of, const Visit & visit)
{
    visit("design.section", of.section);
    visit("design.name", of.name);
    visit("design.file", of.file);
    visit("design.style", of.style);
    visit("design.design", of.design);
    visit("design.background", of.background);
    visit("design.ratio", of.ratio);
    visit("design.distort", of.distort);
    visit("design.sample", of.sample);
    visit("design.help_tip", of.help_tip);
    visit("design.description", of.description);
    visit("design.system", of.system);
    visit("design.count", of.count);
    visit("design.turn_bg", of.turn_bg);
    visit("design.bg_image", of.bg_image);
    visit("design.bg_color", of.bg_color);
    visit("design.match", of.match);
    visit("design.resize", of.resize);
    visit("design.caption", of.caption);
    visit("design.frames", of.frames);
    visit("design.shadows", of.shadows);
    visit("design.block", of.block);
    visit("design.soft_edge", of.soft_edge);
    visit("design.caption_color", of.caption_color);
    visit("design.caption_clear", of.caption_clear);
    visit("design.frame_color", of.frame_color);
    visit("design.shadow_color", of.shadow_color);
    visit("design.flip", of.flip);
    visit("design.borders", of.borders);
    visit("design.quick_shape", of.quick_shape);
}

template <typename Visit>
void visit_quick(quick_state & of, const Visit & visit)
{
    visit("quick.photos_portrait", of.photos_portrait, any_count);
    visit("quick.photos_landscape", of.photos_landscape, any_count);
    visit("quick.photo_shapes", of.photo_shapes);
    visit("quick.along", of.quick_along, any_count);
    visit("quick.cross", of.quick_cross, any_count);
    visit("quick.reduced", of.quick_reduced, range{0, std::numeric_limits<int16>::max()});
    visit("quick.max", of.quick_max, range{0, largest_scatter});
    visit("quick.block_name", of.block_name);
    visit("quick.block_doubled_file", of.block_doubled_file, any_count);
    visit("quick.block_split_file", of.block_split_file, any_count);
    visit("quick.block_doubled", of.block_doubled, range{-most_photos, most_photos});
    visit("quick.block_split", of.block_split, range{-most_photos, most_photos});
    visit("quick.scatter_line", of.scatter_line);
    visit("quick.scatter_mode", of.scatter_mode, scatter_mode::scatter);
    visit("quick.matrix_offset", of.matrix_offset, range{-1, 23});
    visit("quick.matrix_notice_done", of.matrix_notice_done);
    visit("quick.preview_inset", of.preview_inset, range{0, 1000});
    visit("quick.shape_file", of.shape_file);
}

template <typename Visit>
void visit_photos(photo_table & of, const Visit & visit)
{
    visit("photos.reshuffle", of.reshuffle_choice, photo_table::reshuffle::yes);
    visit("photos.landscape", of.landscape_count, any_count);
    visit("photos.portrait", of.portrait_count, any_count);
    visit("photos.shapes", of.orientation_list);
}

template <typename Visit>
void visit_window(frmMain & of, const Visit & visit)
{
    visit("work_style", of.work_style);
    visit("min_location", of.min_location, range{-32768, 100});
    visit("poster_tall", of.poster_tall);
    visit("selected_count", of.selected_count, range{0, std::numeric_limits<int16>::max()});
    visit("collage_width", of.collage_width, range{1, 3000});
    visit("collage_height", of.collage_height, range{1, 3000});
    visit("shake_start", of.shake_start, range{-1, 16});
    visit("mix_step", of.mix_step, range{-1, 8});
    visit("in_preview", of.in_preview);
    visit("preview_blocked", of.preview_blocked);
    visit("skip_preview_click", of.skip_preview_click);
    visit("shape_row_bias", of.shape_row_bias);
    visit("shape_column_bias", of.shape_column_bias);
    visit("shape_rows", of.shape_rows);
    visit("shape_columns", of.shape_columns);
    visit("shape_in_force", of.shape_in_force, poster_shape::square);
    visit("bg_portrait", of.bg_portrait);
    visit("bg_color", of.bg_color);
    visit("caption_color", of.caption_color);
    visit("drawn_background", of.drawn_background);
    visit("font_extended", of.font_extended);
    visit("font_size_text", of.font_size_text);
    visit("last_frame_size", of.last_frame_size);
    visit("matrix_size", of.matrix_size);
    visit("matrix_portrait", of.matrix_portrait);
}

template <typename Visit>
void visit_fields(frmMain & main, const Visit & visit)
{
    visit_collage(main.collage, visit);
    visit_record(main.design_record, visit);
    visit_quick(main.quick, visit);
    visit_photos(main.table, visit);
    visit_window(main, visit);
}

// ---- writing

std::string real_text(double value)
{
    std::array<char, 64> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

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
    void operator()(const char * name, int16 value, range) const { note(name, std::to_string(value)); }
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

// ---- reading

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
    static Number number_in(const char * name, const std::string & text, Number least, Number most)
    {
        Number read{};
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), read);
        if (fault != std::errc{} || end != text.data() + text.size() || read < least || read > most)
            refuse(name);
        return read;
    }

    static double real_in(const char * name, const std::string & text, double least, double most)
    {
        const real_read read = real_at_start(text);
        const bool is_whole = read.fault == std::errc{} && read.length == text.size();
        if (!is_whole || !(read.value >= least && read.value <= most))
            refuse(name);
        return read.value;
    }

    void operator()(const char * name, bool & field) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, number_in(name, *text, 0, 1) == 1);
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
            take(field, real_in(name, *text, -most_photos, most_photos));
    }

    void operator()(const char * name, std::vector<double> & field) const
    {
        const std::string * const text = setting_in(wanted, name);
        if (text == nullptr)
            return;
        std::vector<double> numbers;
        if (!text->empty())
            for (const std::string & each : split(*text, ' ', most_holes))
                numbers.push_back(real_in(name, each, 0, below_one));
        take(field, std::move(numbers));
    }

    void operator()(const char * name, std::uint32_t & field) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, number_in<std::uint32_t>(name, *text, 0, 0xFFFFFF));
    }

    void operator()(const char * name, int16 & field, range of) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, static_cast<int16>(number_in(name, *text, of.least, of.most)));
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
            turns.push_back({.step = number_in(name, numbers[i], 0, most_photos),
                             .first = number_in(name, numbers[i + 1], 0, most_photos)});
        take(field, std::move(turns));
    }

    template <typename Enum>
    requires std::is_enum_v<Enum>
    void operator()(const char * name, Enum & field, Enum last) const
    {
        if (const std::string * const text = setting_in(wanted, name))
            take(field, static_cast<Enum>(number_in(name, *text, 0, static_cast<int>(last))));
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

// ---- what was forced

std::string name_of(const control * held)
{
    return held == nullptr ? std::string() : held->name();
}

void note_forces(std::vector<recipe_force> & forces, const forced_settings & from, recipe_force::source by)
{
    for (const forced_setting & each : from.all())
        forces.push_back({.by = by,
                          .kind = static_cast<int>(each.kind),
                          .control = name_of(each.held),
                          .before = each.before,
                          .forced = each.forced,
                          .option_before = name_of(each.option_before)});
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

std::vector<recipe_force> forces_of(const frmMain & main)
{
    std::vector<recipe_force> forces;
    note_forces(forces, main.collage.forced, recipe_force::source::design);
    note_forces(forces, main.collage.forced_by_style, recipe_force::source::style);
    return forces;
}

void take_forces(frmMain & main, const std::vector<recipe_force> & forces)
{
    std::vector<forced_setting> by_design, by_style;
    for (const recipe_force & each : forces) {
        control * const held = main.find(each.control);
        if (held == nullptr)
            continue;
        auto & noted = each.by == recipe_force::source::design ? by_design : by_style;
        noted.push_back({.kind = static_cast<forced_setting::how>(each.kind),
                         .held = held,
                         .before = each.before,
                         .forced = each.forced,
                         .option_before = dynamic_cast<option_button *>(main.find(each.option_before))});
    }
    main.collage.forced.take(std::move(by_design));
    main.collage.forced_by_style.take(std::move(by_style));
}
