#include "recipes/recipe_rows.h"

bool holds_path(const std::string & control)
{
    return control == "txtBGimage";
}
