#include "recipes/recipe.h"

#include <algorithm>

namespace {

template <typename Entry>
const Entry * named(const std::vector<Entry> & entries, std::string_view name)
{
    const auto found = std::ranges::find(entries, name, &Entry::name);
    return found == entries.end() ? nullptr : &*found;
}

}  // namespace

const std::string & own_path(const recipe_photo & photo)
{
    return photo.original ? photo.original->path : photo.path;
}

const std::string * setting_in(const recipe & held, std::string_view name)
{
    const recipe_setting * const found = named(held.settings, name);
    return found == nullptr ? nullptr : &found->value;
}

const recipe_control * control_in(const recipe & held, std::string_view name)
{
    return named(held.controls, name);
}

const recipe_template * template_in(const recipe & held, std::string_view name)
{
    return named(held.templates, name);
}
