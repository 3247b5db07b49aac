#include "recipes/keep_flurn.h"

#include "engine/output/flurn_file.h"
#include "recipes/recipe_of.h"
#include "recipes/recipe_shelf.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <array>
#include <ctime>

namespace {

constexpr int small_side = 360;  // pixels

std::string local_time()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    std::array<char, 32> text{};
    if (::localtime_r(&now, &parts) == nullptr)
        return {};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts)};
}

// A preview that is on shows the flurn; with the preview off the flurn itself is made small.
std::string picture_of(const frmMain & main, const recipe & made)
{
    return made.pictures_preview ? *main.recipes.preview : flurn_bytes(main.run.canvas, small_side);
}

std::string recipe_name(const std::string & picture)
{
    return picture.substr(0, picture.size() - name_of(picture).size()) +
           name_of(picture).substr(0, name_of(picture).rfind('.')) + recipe_ending;
}

bool may_replace(const frmMain & main, const std::string & file)
{
    return !file_exists(file) || main.desk.ask({.title = "",
                                                .text = "You already have a flurn named:  \r\n" + file +
                                                        "\r\n\r\nDo you want to overwrite that file?",
                                                .offered = answers::yes_no,
                                                .on_enter = answer::no}) == answer::yes;
}

}  // namespace

void note_flurn(frmMain & main)
{
    main.recipes.at_hand.reset();
    if (!owns_data_folder(main))
        return;
    const bool preview = preview_on_show(main) != nullptr && main.optPreview.selected();
    main.recipes.at_hand = recipe_of(main, local_time());
    main.recipes.at_hand->pictures_preview = preview;
}

void keep_flurn(frmMain & main)
{
    if (!main.recipes.at_hand)
        return;
    try {
        const recipe & made = *main.recipes.at_hand;
        // A disk may take its time until it has a file.
        with_platform_errors([&] {
            alone_beside(main.desk, main.workers, [&] { keep_recipe(main, made, picture_of(main, made)); });
        });
    } catch (const platform_error & error) {
        if (std::exchange(main.recipes.told_of_failure, true))
            return;
        main.desk.message("The flurn is made, but \"Recent flurns\" can't list it:\r\n" + told(error) +
                          "\r\n\r\nMake room in the folder of your data, or make it writable.");
    }
}

void keep_beside(frmMain & main, const std::string & picture)
{
    const std::string file = recipe_name(picture);
    if (!main.recipes.at_hand || !may_replace(main, file))
        return;
    recipe kept = *main.recipes.at_hand;
    kept.pictures_preview = false;  // the picture beside it is the flurn
    try {
        with_platform_errors([&] { replace_file(file, recipe_bytes(main, kept, folder_of(file))); });
    } catch (const platform_error & error) {
        main.desk.message("The picture is saved, but its recipe could not be kept beside it:\r\n" + file +
                          "\r\n\r\n" + error.what() + "\r\n\r\nSave the flurn in another folder.");
    }
}
