#include "recipes/read_recipe.h"

#include "photos/lists/photo_table.h"
#include "recipes/recipe_rows.h"
#include "recipes/value_text.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <map>
#include <optional>

namespace {

constexpr std::size_t most_rows_of_a_kind = 1000, most_lines = 1001;  // lines of a template
constexpr std::size_t longest_field = 100'000;
constexpr int farthest = 32767;          // of a control, pixels
constexpr double largest_letters = 400;  // points

// The files that a run may read from the work folder, and no other.
constexpr std::array<std::string_view, 7> template_names{"__quick",  "__matrix", "__matrix_", "__lettering",
                                                         "__puzzle", "__frames", "__recipe"};

[[noreturn]] void refuse(const std::string & what)
{
    throw recipe_fault{what};
}

// The row that is being read; `number` counts from 1.
struct read_row {
    std::vector<std::string> values;
    std::size_t number = 0;

    [[noreturn]] void refuse_it() const
    {
        refuse("Its line " + std::to_string(number) + " can't be understood.");
    }

    void expect(std::size_t count) const
    {
        if (values.size() != count + 1)
            refuse_it();
    }

    const std::string & text(std::size_t index) const { return values[index]; }

    template <typename Number>
    Number number_at(std::size_t index, Number least, Number most) const
    {
        const std::optional<Number> read = whole_number_in(values[index], least, most);
        if (!read)
            refuse_it();
        return *read;
    }

    bool flag_at(std::size_t index) const { return number_at(index, 0, 1) == 1; }

    double real_at(std::size_t index, double least, double most) const
    {
        const std::optional<double> read = real_in(values[index], least, most);
        if (!read)
            refuse_it();
        return *read;
    }
};

char sign_behind_escape(char sign, const read_row & at)
{
    constexpr std::string_view letters = "\\tnr", signs = "\\\t\n\r";
    const std::size_t found = letters.find(sign);
    if (found == std::string_view::npos)
        at.refuse_it();
    return signs[found];
}

std::string unescaped(std::string_view text, const read_row & at)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\')
            plain += text[i];
        else if (++i < text.size())
            plain += sign_behind_escape(text[i], at);
        else
            at.refuse_it();
    }
    return plain;
}

read_row row_of(const std::string & line, std::size_t number)
{
    constexpr std::size_t most_fields = 32;
    read_row read{.values = {}, .number = number};
    for (const std::string & field : split(line, '\t', most_fields)) {
        if (field.size() > longest_field)
            read.refuse_it();
        read.values.push_back(unescaped(field, read));
    }
    return read;
}

template <typename Entry>
void add(std::vector<Entry> & entries, Entry entry, const read_row & from,
         std::size_t most = most_rows_of_a_kind)
{
    if (entries.size() >= most)
        from.refuse_it();
    entries.push_back(std::move(entry));
}

// A name that stands there twice would mean one thing here and another there.
template <typename Entry>
void add_named(std::vector<Entry> & entries, Entry entry, const read_row & from)
{
    if (entry.name.empty() || std::ranges::find(entries, entry.name, &Entry::name) != entries.end())
        from.refuse_it();
    add(entries, std::move(entry), from);
}

// A photo and its original have the same fields.
template <typename File>
File file_in(const read_row & from, const known_folders & folders)
{
    from.expect(3);
    const std::optional<std::string> path = path_named(from.text(1), folders);
    if (!path)
        refuse("Its line " + std::to_string(from.number) +
               " names a photo at a place where a flurn may not look.");
    return {.path = *path,
            .bytes = from.number_at<std::uint64_t>(2, 0, std::numeric_limits<std::uint64_t>::max()),
            .changed = from.number_at<std::int64_t>(3, std::numeric_limits<std::int64_t>::min(),
                                                    std::numeric_limits<std::int64_t>::max()),
            .moves_along = from.text(1).starts_with("here:")};
}

void read_photo(recipe & into, const read_row & from, const known_folders & folders)
{
    add(into.photos, file_in<recipe_photo>(from, folders), from, photo_table::capacity);
}

// It belongs to the photo above it.
void read_original(recipe & into, const read_row & from, const known_folders & folders)
{
    if (into.photos.empty() || into.photos.back().original)
        from.refuse_it();
    into.photos.back().original = file_in<recipe_original>(from, folders);
}

font_style font_at(const read_row & from)
{
    return {.name = from.text(14),
            .size = from.real_at(15, 0, largest_letters),
            .bold = from.flag_at(16),
            .italic = from.flag_at(17),
            .underline = from.flag_at(18),
            .strikethrough = from.flag_at(19)};
}

// What is half typed there is no path, and leads nowhere.
std::string text_held(const std::string & control, const std::string & text, const known_folders & folders)
{
    return holds_path(control) ? path_named(text, folders).value_or("") : text;
}

void read_control(recipe & into, const read_row & from, const known_folders & folders)
{
    constexpr std::uint32_t largest_color = 0xFFFFFFFF;
    from.expect(19);
    const auto pixels = [&](std::size_t index) { return from.number_at(index, -farthest, farthest); };
    const auto color = [&](std::size_t index) {
        return from.number_at<std::uint32_t>(index, 0, largest_color);
    };
    add_named(
        into.controls,
        {.name = from.text(1),
         .state = {.caption = from.text(2),
                   .tool_tip = from.text(3),
                   .tag = from.text(4),
                   .value = text_held(from.text(1), from.text(5), folders),
                   .place = {.left = pixels(6), .top = pixels(7), .width = pixels(8), .height = pixels(9)},
                   .back_color = color(10),
                   .fore_color = color(11),
                   .visible = from.flag_at(12),
                   .enabled = from.flag_at(13),
                   .font = font_at(from)}},
        from);
}

void read_force(recipe & into, const read_row & from, const known_folders & folders)
{
    constexpr int last_kind = 3;
    from.expect(6);
    if (from.text(1) != "design" && from.text(1) != "style")
        from.refuse_it();
    add(into.forces,
        {.by = from.text(1) == "design" ? recipe_force::source::design : recipe_force::source::style,
         .kind = from.number_at(2, 0, last_kind),
         .control = from.text(3),
         .before = text_held(from.text(3), from.text(4), folders),
         .forced = text_held(from.text(3), from.text(5), folders),
         .option_before = from.text(6)},
        from);
}

void read_template(recipe & into, const read_row & from)
{
    from.expect(1);
    if (std::ranges::find(template_names, from.text(1)) == template_names.end())
        refuse("Its line " + std::to_string(from.number) + " has a template that no flurn has.");
    add_named(into.templates, {.name = from.text(1), .text = {}}, from);
}

void read_line(recipe & into, const read_row & from)
{
    from.expect(1);
    if (into.templates.empty() || from.text(1).find_first_of("\r\n") != std::string::npos)
        from.refuse_it();
    into.templates.back().text += from.text(1) + "\r\n";
}

void read_chance(recipe & into, const read_row & from)
{
    constexpr std::uint64_t all = std::numeric_limits<std::uint64_t>::max();
    from.expect(3);
    into.chance = chance_position{.seed = from.number_at<std::uint64_t>(1, 0, all),
                                  .reseeds = from.number_at<std::uint64_t>(2, 0, farthest_position),
                                  .draws = from.number_at<std::uint64_t>(3, 0, farthest_position)};
}

void read_setting(recipe & into, const read_row & from)
{
    from.expect(2);
    add_named(into.settings, {.name = from.text(1), .value = from.text(2)}, from);
}

void read_preview(recipe & into, const read_row & from)
{
    from.expect(0);
    into.pictures_preview = true;
}

using text_member = std::string recipe::*;

void read_text(recipe & into, const read_row & from, text_member member)
{
    from.expect(1);
    into.*member = from.text(1);
}

using reader = std::function<void(recipe &, const read_row &, const known_folders &)>;

reader without_folders(void (*read)(recipe &, const read_row &))
{
    return [read](recipe & into, const read_row & from, const known_folders &) { read(into, from); };
}

reader text_into(text_member member)
{
    return [member](recipe & into, const read_row & from, const known_folders &) {
        read_text(into, from, member);
    };
}

const std::map<std::string, reader> & readers()
{
    static const std::map<std::string, reader> table = {
        {"program", text_into(&recipe::program)},
        {"made", text_into(&recipe::made)},
        {"design", text_into(&recipe::design)},
        {"photo", read_photo},
        {"original", read_original},
        {"setting", without_folders(read_setting)},
        {"control", read_control},
        {"forced", read_force},
        {"template", without_folders(read_template)},
        {"line", without_folders(read_line)},
        {"chance", without_folders(read_chance)},
        {"preview", without_folders(read_preview)},
    };
    return table;
}

void check_heading(const std::vector<std::string> & lines)
{
    if (lines.empty() || !lines.front().starts_with(recipe_heading) || lines.front().size() > 40)
        refuse("It is no flurn of Tessaloom.");
    const read_row first = row_of(lines.front(), 1);
    first.expect(1);
    if (first.text(0) != recipe_heading)
        refuse("It is no flurn of Tessaloom.");
    if (first.number_at(1, 1, std::numeric_limits<int>::max()) > recipe_version)
        refuse("It was made by a newer Tessaloom. Open it with that one, or bring this one up to date.");
}

void check_templates(const recipe & held)
{
    for (const recipe_template & each : held.templates)
        if (static_cast<std::size_t>(std::ranges::count(each.text, '\n')) > most_lines)
            refuse("A template in it has too many lines.");
}

}  // namespace

recipe recipe_of_text(std::string_view text, const known_folders & folders)
{
    if (text.size() > largest_recipe)
        refuse("It is too large for a flurn.");
    if (text.find('\0') != std::string_view::npos)
        refuse("It is no flurn of Tessaloom.");
    const std::vector<std::string> lines = lines_of_text(std::string(text));
    check_heading(lines);
    if (lines.back() != "end")
        refuse("It was cut short.");
    recipe held;
    std::size_t number = 1;
    for (; number < lines.size() && lines[number] != "end"; ++number) {
        const read_row from = row_of(lines[number], number + 1);
        const auto found = readers().find(from.text(0));
        if (found == readers().end())
            from.refuse_it();
        found->second(held, from, folders);
    }
    if (number + 1 != lines.size())
        refuse("Something stands behind its end.");
    check_templates(held);
    return held;
}
