#include "recipes/frmRecent.h"

#include "recipes/recipe_shelf.h"
#include "session/windows.h"
#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

#include <algorithm>

// The flurns that were made last.

namespace {

constexpr std::size_t to_the_minute = 16;  // of "2026-11-22 15:30:11"

std::string line_of(const kept_recipe & kept)
{
    if (kept.made.empty())
        return shown_in_message(name_of(kept.file));
    return shown_in_message(kept.made.substr(0, to_the_minute) + "   " + kept.design);
}

void offer_what_can_be_done(frmRecent & window)
{
    const bool chosen = window.lstFlurns.list_index() >= 0;
    window.cmdOk.enable(chosen);
    window.cmdRemove.enable(chosen);
    window.lblEmpty.show(window.flurns.empty());
}

// One is always chosen, so that a key is enough.
void select_near(frmRecent & window, int index)
{
    const int last = static_cast<int>(window.flurns.size()) - 1;
    window.lstFlurns.select(std::min(index, last));
    offer_what_can_be_done(window);
}

void show_flurns(windows & all)
{
    frmRecent & window = all.recent;
    window.flurns = kept_recipes(all.main);
    std::vector<std::string> lines, pictures;
    for (const kept_recipe & each : window.flurns) {
        lines.push_back(line_of(each));
        pictures.push_back(each.picture);
    }
    window.lstFlurns.set_items(lines);
    window.lstFlurns.set_pictures(pictures);
    select_near(window, 0);
}

const kept_recipe * selected(const frmRecent & window)
{
    const int index = window.lstFlurns.list_index();
    return index < 0 ? nullptr : &window.flurns[static_cast<std::size_t>(index)];
}

void open_selected(frmRecent & window)
{
    const kept_recipe * const chosen = selected(window);
    if (chosen == nullptr)
        return;
    window.result = chosen->file;
    window.unload();
}

// What can't be removed stays in the list.
void cmdRemove_click(windows & all)
{
    frmRecent & window = all.recent;
    const int index = window.lstFlurns.list_index();
    if (index < 0)
        return;
    try {
        remove_recipe(window.flurns[static_cast<std::size_t>(index)]);
    } catch (const platform_error & error) {
        all.main.desk.message("This flurn could not be removed from the list:\r\n" + told(error));
        return;
    }
    window.flurns.erase(window.flurns.begin() + index);
    window.lstFlurns.remove_item(index);
    select_near(window, index);
}

void cmdFile_click(windows & all)
{
    const std::optional<std::string> chosen = all.main.desk.choose_file(
        {.title = "Open flurn", .filter = "Flurns (*.flurn)|*.flurn", .folder = {}, .extension = {}});
    if (!chosen)
        return;
    all.recent.result = *chosen;
    all.recent.unload();
}

}  // namespace

void connect_frmRecent(windows & all)
{
    frmRecent & window = all.recent;
    window.on_load = [&all] { show_flurns(all); };
    window.lstFlurns.on_click = [&window] { offer_what_can_be_done(window); };
    window.lstFlurns.on_double_click = [&window] { open_selected(window); };
    window.cmdOk.on_click = [&window] { open_selected(window); };
    window.cmdRemove.on_click = [&all] { cmdRemove_click(all); };
    window.cmdFile.on_click = [&all] { cmdFile_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
