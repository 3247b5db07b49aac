#include "recipes/recipe_text.h"

#include "recipes/recipe_rows.h"
#include "recipes/value_text.h"
#include "support/files/text_file.h"

#include <algorithm>

namespace {

std::string escaped(std::string_view text)
{
    std::string safe;
    for (const char sign : text) {
        if (sign == '\\')
            safe += "\\\\";
        else if (sign == '\t')
            safe += "\\t";
        else if (sign == '\n')
            safe += "\\n";
        else if (sign == '\r')
            safe += "\\r";
        else
            safe += sign;
    }
    return safe;
}

std::string row(const std::vector<std::string> & values)
{
    std::string text;
    for (const std::string & value : values)
        text += (text.empty() ? "" : "\t") + escaped(value);
    return text + "\r\n";
}

std::string flag(bool on)
{
    return on ? "1" : "0";
}

std::string held_text(const std::string & control, const std::string & text, const known_folders & folders)
{
    return holds_path(control) ? kept_path(text, folders) : text;
}

std::string control_row(const recipe_control & each, const known_folders & folders)
{
    const control_state & state = each.state;
    return row({"control",
                each.name,
                state.caption,
                state.tool_tip,
                state.tag,
                held_text(each.name, state.value, folders),
                std::to_string(state.place.left),
                std::to_string(state.place.top),
                std::to_string(state.place.width),
                std::to_string(state.place.height),
                std::to_string(state.back_color),
                std::to_string(state.fore_color),
                flag(state.visible),
                flag(state.enabled),
                state.font.name,
                real_text(state.font.size),
                flag(state.font.bold),
                flag(state.font.italic),
                flag(state.font.underline),
                flag(state.font.strikethrough)});
}

std::string template_rows(const recipe_template & each)
{
    std::string text = row({"template", each.name});
    for (const std::string & line : lines_of_text(each.text))
        text += row({"line", line});
    return text;
}

std::string photo_rows(const recipe_photo & photo, const known_folders & folders)
{
    std::string text = row({"photo", kept_path(photo.path, folders), std::to_string(photo.bytes),
                            std::to_string(photo.changed)});
    if (photo.original)
        text += row({"original", kept_path(photo.original->path, folders),
                     std::to_string(photo.original->bytes), std::to_string(photo.original->changed)});
    return text;
}

std::string rows_of(const recipe & held, const known_folders & folders)
{
    std::string text;
    for (const recipe_photo & photo : held.photos)
        text += photo_rows(photo, folders);
    for (const recipe_setting & each : held.settings)
        text += row({"setting", each.name, each.value});
    for (const recipe_control & each : held.controls)
        text += control_row(each, folders);
    for (const recipe_force & each : held.forces)
        text += row({"forced", each.by == recipe_force::source::design ? "design" : "style",
                     std::to_string(each.kind), each.control, held_text(each.control, each.before, folders),
                     held_text(each.control, each.forced, folders), each.option_before});
    for (const recipe_template & each : held.templates)
        text += template_rows(each);
    return text;
}

int version_of(const recipe & held)
{
    const bool has_originals = std::ranges::any_of(
        held.photos, [](const recipe_photo & photo) { return photo.original.has_value(); });
    return has_originals ? recipe_version : version_without_originals;
}

}  // namespace

std::string recipe_text(const recipe & held, const known_folders & folders)
{
    std::string text = row({std::string(recipe_heading), std::to_string(version_of(held))}) +
                       row({"program", held.program}) + row({"made", held.made}) +
                       row({"design", held.design});
    if (held.chance)
        text += row({"chance", std::to_string(held.chance->seed), std::to_string(held.chance->reseeds),
                     std::to_string(held.chance->draws)});
    if (held.pictures_preview)
        text += row({"preview"});
    return text + rows_of(held, folders) + row({"end"});
}
